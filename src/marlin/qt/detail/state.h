// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/qt/detail/dialog_window.h>
#include <marlin/qt/window_system.h>

#include <memory>
#include <unordered_map>
#include <vector>

namespace PLATFORM {

struct QtWindowSystem::State {
    struct Dialog {
        std::unique_ptr<DialogWindow> Window;
        std::vector<HWND> Controls;
    };

    std::unordered_map<HWND, Dialog> Dialogs;
    std::unordered_map<HWND, QWidget*> Widgets;  ///< Dialogs and controls.
    std::unordered_map<const QWidget*, HWND> Handles;
    std::unordered_map<HWND, bool> Sorted;  ///< The drop-down lists that are.
};

template <typename Kind>
Kind* QtWindowSystem::Find(HWND window) const noexcept {
    return dynamic_cast<Kind*>(Widget(window));
}

}  // namespace PLATFORM
