// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/messages.h>

#include <span>
#include <vector>

class QDialog;
class QWidget;

namespace PLATFORM::detail {

/// Makes the widgets of a template's controls, owned by their dialog, each with the name that a
/// screen reader says, and sets the tab order.
[[nodiscard]] std::vector<QWidget*> MakeWidgets(const DialogTemplate& form,
                                                std::span<const HWND> handles, QDialog& dialog);

}  // namespace PLATFORM::detail
