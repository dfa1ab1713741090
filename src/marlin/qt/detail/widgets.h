// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/window_types.h>

#include <span>
#include <vector>

class QDialog;
class QWidget;

namespace PLATFORM {

/// Makes the widgets of a template's controls, each with its spoken name and in tab order, owned
/// by their dialog.
[[nodiscard]] std::vector<QWidget*> MakeWidgets(const DialogTemplate& form,
                                                std::span<const HWND> handles, QDialog& dialog);

}  // namespace PLATFORM
