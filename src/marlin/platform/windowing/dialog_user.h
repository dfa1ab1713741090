// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/window_types.h>

#include <vector>

namespace PLATFORM {

/// The hands of a person before a dialog that is shown. Controls are named by their numbers.
/// Each act is done to its end, with all that the dialog does on it, and is false, with nothing
/// done, where a person could not do it: no such control or row, one that is disabled, or a
/// dialog that has ended.
class MARLIN_API DialogUser {
public:
    DialogUser() = default;
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    virtual ~DialogUser();

    [[nodiscard]] virtual HWND Dialog() const = 0;

    /// Presses a button or a check box.
    virtual bool Click(int control) = 0;
    /// Replaces the text of an edit.
    virtual bool Type(int edit, const CString& text) = 0;
    /// Presses the upper arrow of a spin so many times, the lower one for a negative number.
    virtual bool Spin(int spin, int steps) = 0;
    /// Chooses an item of a drop-down list.
    virtual bool Choose(int combo, int item) = 0;
    /// Clicks on the first row, then on the others with the control key held; without rows, on
    /// the empty space, where nothing is selected.
    virtual bool SelectRows(int list, const std::vector<int>& rows) = 0;
    virtual bool DoubleClick(int list, int row) = 0;
    /// Presses a key, one of the VK_ numbers, where the focus is.
    virtual bool Press(int key) = 0;
    /// Closes the dialog by the frame of its window.
    virtual bool CloseFrame() = 0;
};

}  // namespace PLATFORM
