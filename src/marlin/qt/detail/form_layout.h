// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>

#include <span>

class QDialog;
class QWidget;

namespace PLATFORM::detail {

/// Lays the widgets of a template's controls out in their dialog; both are in the same order. The
/// edges of the controls in the template are the lines of a grid, at least as far apart as there.
/// The widest column of edits and lists grows with the dialog, and so does the highest row that
/// has only a list in it; a row of buttons below all else stays at the right.
void LayOut(const DialogTemplate& form, std::span<QWidget* const> widgets, QDialog& dialog);

}  // namespace PLATFORM::detail
