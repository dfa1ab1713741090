// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <span>
#include <string>
#include <string_view>

namespace PLATFORM {

/// The kinds of controls.
enum class CONTROL {
    LABEL,           ///< A text that the user cannot change.
    EDIT,            ///< A field of one line.
    PUSH_BUTTON,     ///< Not pressed by Enter.
    DEFAULT_BUTTON,  ///< Pressed by Enter.
    OWNER_BUTTON,    ///< Drawn by its window class.
    CHECK_BOX,       ///< With its text left of the box.
    DROP_DOWN_LIST,  ///< A field whose choices drop down.
    SPIN,            ///< Attached to the edit before it, in which it sets whole numbers.
    REPORT_LIST,     ///< With a border, several rows selectable, the selection always visible.
};

/// One control of a dialog template.
struct ControlTemplate {
    int Id;  ///< -1 for labels.
    CONTROL Kind;
    /// "&" marks the mnemonic, the letter after it, except in an owner-drawn button.
    std::string_view Text;
    int X;  ///< Dialog units, from the upper left corner of the dialog's inside.
    int Y;
    int Width;
    int Height;
    /// The name that a screen reader says; empty where it is the text, or else the label before.
    std::string_view SpokenName = {};
    std::span<const std::string_view> Items = {};  ///< Of a drop-down list.
    bool Disabled = false;                         ///< At first.
    bool Sorted = false;                           ///< Keeps a drop-down list's items in order.
};

/// A dialog as data: its controls in tab order, a label before the control that it names.
struct DialogTemplate {
    unsigned int Id;
    std::string_view Caption;
    int Width;  ///< Of the inside, in dialog units.
    int Height;
    std::string_view FontName;
    int FontSize;  ///< Points.
    std::span<const ControlTemplate> Controls;
};

/// The name of a control for people: its own, or else its text or that of the label before it,
/// without the mark of the mnemonic and the colon.
[[nodiscard]] MARLIN_API std::string NameOf(const DialogTemplate& form, std::size_t control);

/// The library's resources hand over their templates when it is loaded; these live as long as it.
void SetDialogTemplates(std::span<const DialogTemplate> templates) noexcept;

/// The template of that number among those; null when there is none.
[[nodiscard]] MARLIN_API const DialogTemplate* FindDialogTemplate(unsigned int id) noexcept;

}  // namespace PLATFORM
