// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/dialogs/detail/edited_contours.h>
#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/c_list_ctrl.h>

#include <vector>

namespace MARLINSUITE::detail {

/// The list of the contour editor: the definitions, and the control that shows them from the
/// highest level down.
class ContourList {
public:
    using ContourDefInfo = ContourDefinitionList::ContourDefInfo;

    EditedContours Edited;
    CListCtrl Control;

    [[nodiscard]] const ContourDefinitionList& Definitions() const noexcept {
        return Edited.List();
    }
    /// The definition that a row shows; the row that shows a definition is the same number.
    [[nodiscard]] int DefinitionOfRow(int row) const noexcept {
        return Definitions().NumContours() - 1 - row;
    }
    [[nodiscard]] const ContourDefInfo& At(int row) const noexcept {
        return Definitions()[DefinitionOfRow(row)];
    }

    void InsertColumns();
    /// Shows all definitions anew, none of them selected.
    void Refill();

    /// From the top.
    [[nodiscard]] std::vector<int> SelectedRows() const;
    [[nodiscard]] int FirstSelected() const;
    /// Puts the keyboard there, too.
    void Select(int row);
    /// The same with the first row that shows the level; nothing where none does.
    void SelectLevel(double level);
    void SelectRows(const std::vector<int>& rows);

    /// True when a row's definition cannot get that level, since another one has it.
    [[nodiscard]] bool MovesOntoAnother(const ContourDefInfo& edited, int row) const noexcept;
    /// Gives the rows the properties; several ones keep their levels.
    void Modify(const ContourDefInfo& edited, const std::vector<int>& rows);
    void Remove(const std::vector<int>& rows);

    // Answers to the control's questions.
    void ShowCell(NMLVDISPINFOA& asked) const;
    void ShowTip(NMLVGETINFOTIPA& asked) const;
    void DrawCell(NMLVCUSTOMDRAW& draw) const;

private:
    void ShowImages();

    CImageList m_Images;
};

}  // namespace MARLINSUITE::detail
