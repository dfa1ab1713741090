// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/user_events.h>

#include <vector>

namespace PLATFORM {

/// A person at a dialog that is shown, as a `UserScript` gets one. Controls are named by their
/// numbers. Each act returns when the dialog has done all that it does on it. It returns false,
/// and does nothing, where a person could not do it: no such control or row, one that is
/// disabled, or a dialog that has ended.
/// @code
/// PLATFORM::UserScript script;
/// script.InDialog([](PLATFORM::DialogUser& user) {
///     user.SelectRows(MARLINSUITE::CONTROL_CONTOUR_LIST, {0, 2});
///     user.Press(VK_DELETE);
///     user.Click(IDOK);
/// });
/// @endcode
class MARLIN_API DialogUser {
public:
    DialogUser() = default;
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    virtual ~DialogUser() = default;

    [[nodiscard]] virtual HWND Dialog() const = 0;

    /// Presses a button or a check box.
    virtual bool Click(int control) = 0;
    /// Replaces the text of an edit, or of the row that a list lets the user type.
    virtual bool Type(int edit, const CString& text) = 0;
    /// Presses the upper arrow of a spin that many times, the lower one for a negative number.
    virtual bool Spin(int spin, int steps) = 0;
    /// Chooses an item of a drop-down list.
    virtual bool Choose(int combo, int item) = 0;
    /// Clicks on the first row, then on the others with the control key held; without rows, on
    /// the empty space, which selects nothing.
    virtual bool SelectRows(int list, const std::vector<int>& rows) = 0;
    virtual bool DoubleClick(int list, int row) = 0;
    /// Clicks on a row (-1: the empty space) with the right button, which selects it where it is
    /// not selected.
    virtual bool RightClick(int list, int row) = 0;
    /// Presses a key, one of the VK_ numbers, in the control that has the focus.
    virtual bool Press(int key, const HeldKeys& held) = 0;
    bool Press(int key) { return Press(key, {}); }
    /// Waits until the dialog has handled the messages that were posted.
    virtual void Idle() = 0;
    /// Closes the dialog by the frame of its window.
    virtual bool CloseFrame() = 0;
};

}  // namespace PLATFORM
