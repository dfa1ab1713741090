// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/windowing/detail/headless_drop_down.h>
#include <marlin/platform/windowing/detail/headless_list.h>
#include <marlin/platform/windowing/messages.h>
#include <marlin/platform/windowing/spin_range.h>

#include <vector>

namespace PLATFORM::detail {

/// A control kept in memory, with the state of every kind: of use is what its own kind has.
struct HeadlessControl {
    HWND Window;
    HWND Dialog;
    const ControlTemplate& Form;
    HWND Before;  ///< The control before it in its template: the edit of a spin.
    CString Text{Form.Text};
    CString Description;
    bool IsEnabled = !Form.Disabled;
    bool IsChecked = false;
    SpinRange Range;
    HeadlessDropDown Items{Form};
    HeadlessList List;
    CBitmap Surface;
    CDC Face;  ///< Draws on the surface; without a context for what is not owner-drawn.

    HeadlessControl(HWND window, HWND dialog, const ControlTemplate& form, HWND before);

    [[nodiscard]] bool Is(CONTROL kind) const noexcept { return Form.Kind == kind; }
    [[nodiscard]] bool IsButton() const noexcept {
        return Is(CONTROL::PUSH_BUTTON) || Is(CONTROL::DEFAULT_BUTTON) || Is(CONTROL::OWNER_BUTTON);
    }
    /// The size of an owner-drawn button in pixels; 0 for another control.
    [[nodiscard]] SIZE FaceSize() const noexcept;
    /// Has an owner-drawn button draw itself over what was drawn before.
    void Draw(UINT action) const;
};

/// A dialog kept in memory.
struct HeadlessDialog {
    CString Title;
    std::vector<HWND> Controls;
    HWND Focus = nullptr;
    bool HasEnded = false;
    int Result = 0;
};

}  // namespace PLATFORM::detail
