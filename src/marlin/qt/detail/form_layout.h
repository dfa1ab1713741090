// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>

#include <span>

class QDialog;
class QWidget;

namespace PLATFORM::detail {

/// Lays the widgets of a template's controls out in their dialog, in the same order. Edges that
/// the template gives are the lines of a grid, at least as far apart as there. The widest column
/// of edits and lists grows with the dialog, and the highest row that only a list stands in; a
/// row of buttons below all else stays at the right.
void LayOut(const DialogTemplate& form, std::span<QWidget* const> widgets, QDialog& dialog);

}  // namespace PLATFORM::detail
