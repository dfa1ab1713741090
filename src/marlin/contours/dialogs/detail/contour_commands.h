// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/dialogs/detail/contour_list.h>
#include <marlin/platform/drawing/point.h>

class CDialog;

namespace MARLINSUITE::detail {

/// The commands of the contour editor that have no button, and the menu of all commands.
class ContourCommands {
public:
    ContourCommands(CDialog& editor, ContourList& list) noexcept : m_Editor(editor), m_List(list) {}

    /// The command of a key that is held with Control, 0 for none.
    [[nodiscard]] static int OfKey(WPARAM key, bool isShifted) noexcept;
    /// For the numbers of buttons too.
    [[nodiscard]] bool CanDo(int command) const;
    /// Does nothing where it cannot be done.
    void Do(int command);
    /// Shows the menu and returns the command that was chosen, 0 for none.
    [[nodiscard]] int Choose(CPoint place) const;

private:
    void ShowChanged(int index);
    void AddBeside(int row, double level);
    void Duplicate();
    void InsertBetween();
    void CopyColor() const;
    void PasteColor();
    void RecolorFromTable();
    template <typename ColorOf>
    void Recolor(const std::vector<int>& rows, const ColorOf& colorOf);

    CDialog& m_Editor;
    ContourList& m_List;
};

}  // namespace MARLINSUITE::detail
