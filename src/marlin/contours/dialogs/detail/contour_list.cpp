// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/detail/contour_list.h>
#include <marlin/contours/dialogs/detail/contour_rows.h>
#include <marlin/platform/drawing/c_dc.h>

#include <algorithm>
#include <cstring>

namespace MARLINSUITE::detail {

namespace {

void CopyText(const CString& text, char* place, int size) {
    const auto length =
        std::min<std::size_t>(text.View().size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(place, text.GetString(), length);
    place[length] = 0;
}

}  // namespace

void ContourList::InsertColumns() {
    InsertContourColumns(Control);
}

void ContourList::ShowImages() {
    MakeSwatches(Definitions(), m_Images);
    Control.SetImageList(&m_Images, LVSIL_SMALL);
}

void ContourList::Refill() {
    ShowImages();
    Control.SetItemCountEx(Definitions().NumContours());
}

std::vector<int> ContourList::SelectedRows() const {
    std::vector<int> rows;
    for (int row = FirstSelected(); row >= 0; row = Control.GetNextItem(row, LVNI_SELECTED)) {
        rows.push_back(row);
    }
    return rows;
}

int ContourList::FirstSelected() const {
    return Control.GetNextItem(-1, LVNI_SELECTED);
}

void ContourList::Select(int row) {
    constexpr UINT states = LVIS_SELECTED | LVIS_FOCUSED;
    Control.EnsureVisible(row, false);
    Control.SetSelectionMark(row);
    Control.SetItemState(row, states, states);
    Control.SetFocus();
}

void ContourList::SelectLevel(double level) {
    const int index = IndexOfLevel(Definitions(), level);
    if (index >= 0) {
        Select(DefinitionOfRow(index));
    }
}

void ContourList::SelectRows(const std::vector<int>& rows) {
    for (const int row : rows) {
        Control.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    }
}

bool ContourList::MovesOntoAnother(const ContourDefInfo& edited, int row) const noexcept {
    return edited.Level != At(row).Level && Definitions().Find(edited.Level) >= 0;
}

void ContourList::Modify(const ContourDefInfo& edited, const std::vector<int>& rows) {
    Edited.Make([&](ContourDefinitionList& list) {
        for (const int row : rows) {
            const int index = DefinitionOfRow(row);
            ContourDefInfo changed = edited;
            if (rows.size() > 1) {
                changed.Level = list[index].Level;
            }
            list.Set(index, changed);
        }
        return true;
    });
}

void ContourList::Remove(const std::vector<int>& rows) {
    // From this number of rows on, showing all anew is faster.
    constexpr std::size_t many = 1'000;
    // Rows at the top are definitions at the end, so neither moves what is still to be removed.
    const int last = DefinitionOfRow(0);
    Edited.Make([&](ContourDefinitionList& list) {
        return std::ranges::all_of(rows, [&](int row) { return list.Remove(last - row); });
    });
    if (rows.size() >= many) {
        Refill();
        return;
    }
    ShowImages();
    std::for_each(rows.rbegin(), rows.rend(), [this](int row) { Control.DeleteItem(row); });
}

void ContourList::ShowCell(NMLVDISPINFOA& asked) const {
    LVITEMA& item = asked.item;
    CopyText(CellText(At(item.iItem), item.iSubItem), item.pszText, item.cchTextMax);
    item.iImage = item.iSubItem == 0 ? DefinitionOfRow(item.iItem) : -1;
}

void ContourList::ShowTip(NMLVGETINFOTIPA& asked) const {
    CopyText(TipText(At(asked.iItem)), asked.pszText, asked.cchTextMax);
}

void ContourList::DrawCell(NMLVCUSTOMDRAW& draw) const {
    if (CDC* const dc = CDC::FromHandle(draw.hdc)) {
        DrawLineSample(At(draw.iItem), draw.iSubItem, *dc, draw.rc, draw.rcText);
    }
}

}  // namespace MARLINSUITE::detail
