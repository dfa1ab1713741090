// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/detail/headless_state.h>

#include <algorithm>

namespace PLATFORM {

namespace {

template <typename Element>
bool Holds(const std::vector<Element>& elements, int index) noexcept {
    return index >= 0 && index < static_cast<int>(elements.size());
}

std::ptrdiff_t Offset(int index, std::size_t size) noexcept {
    return std::clamp<std::ptrdiff_t>(index, 0, static_cast<std::ptrdiff_t>(size));
}

}  // namespace

HeadlessControl* HeadlessWindowSystem::FindList(HWND list) const noexcept {
    HeadlessControl* const found = FindControl(list);
    return found && found->Is(CONTROL::REPORT_LIST) ? found : nullptr;
}

bool HeadlessWindowSystem::IsChecked(HWND box) const {
    const HeadlessControl* const found = FindControl(box);
    return found && found->Checked;
}

void HeadlessWindowSystem::SetChecked(HWND box, bool checked) {
    if (HeadlessControl* const found = FindControl(box)) {
        found->Checked = checked;
    }
}

int HeadlessWindowSystem::CurrentItem(HWND combo) const {
    const HeadlessControl* const found = FindControl(combo);
    return found ? found->Current : -1;
}

void HeadlessWindowSystem::SetCurrentItem(HWND combo, int item) {
    if (HeadlessControl* const found = FindControl(combo)) {
        found->Current = Holds(found->Items, item) ? item : -1;
    }
}

int HeadlessWindowSystem::ItemCount(HWND combo) const {
    const HeadlessControl* const found = FindControl(combo);
    return found ? static_cast<int>(found->Items.size()) : 0;
}

CString HeadlessWindowSystem::ItemText(HWND combo, int item) const {
    const HeadlessControl* const found = FindControl(combo);
    const bool isThere = found && Holds(found->Items, item);
    return isThere ? found->Items[static_cast<std::size_t>(item)] : CString();
}

int HeadlessWindowSystem::AddItem(HWND combo, const CString& text) {
    HeadlessControl* const found = FindControl(combo);
    if (!found || !found->Is(CONTROL::DROP_DOWN_LIST)) {
        return -1;
    }
    const auto comesLater = [](const CString& added, const CString& item) {
        return added.CompareNoCase(item) < 0;
    };
    const auto place = found->Form->Sorted ? std::upper_bound(found->Items.begin(),
                                                              found->Items.end(), text, comesLater)
                                           : found->Items.end();
    return static_cast<int>(found->Items.insert(place, text) - found->Items.begin());
}

void HeadlessWindowSystem::SetRange(HWND spin, int lower, int upper) {
    if (HeadlessControl* const found = FindControl(spin)) {
        found->Lower = lower;
        found->Upper = upper;
    }
}

void HeadlessWindowSystem::InsertColumn(HWND list, int column, const CString& heading, int width) {
    if (HeadlessControl* const found = FindList(list)) {
        auto& columns = found->List.Columns;
        columns.insert(columns.begin() + Offset(column, columns.size()), {heading, width});
    }
}

CString HeadlessWindowSystem::Heading(HWND list, int column) const {
    const HeadlessControl* const found = FindList(list);
    const bool isThere = found && Holds(found->List.Columns, column);
    return isThere ? found->List.Columns[static_cast<std::size_t>(column)].Heading : CString();
}

int HeadlessWindowSystem::ColumnWidth(HWND list, int column) const {
    const HeadlessControl* const found = FindList(list);
    const bool isThere = found && Holds(found->List.Columns, column);
    return isThere ? found->List.Columns[static_cast<std::size_t>(column)].Width : 0;
}

void HeadlessWindowSystem::SetImages(HWND list, const CImageList* images) {
    if (HeadlessControl* const found = FindList(list)) {
        found->List.Images = images ? *images : CImageList();
    }
}

void HeadlessWindowSystem::InsertRow(HWND list, int row, const CString& text, int image) {
    if (HeadlessControl* const found = FindList(list)) {
        auto& rows = found->List.Rows;
        rows.insert(rows.begin() + Offset(row, rows.size()), {{text}, image, false});
    }
}

void HeadlessWindowSystem::SetCell(HWND list, int row, int column, const CString& text) {
    HeadlessControl* const found = FindList(list);
    if (!found || !found->List.HasRow(row) || !Holds(found->List.Columns, column)) {
        return;
    }
    auto& cells = found->List.At(row).Cells;
    cells.resize(std::max(cells.size(), static_cast<std::size_t>(column) + 1));
    cells[static_cast<std::size_t>(column)] = text;
}

CString HeadlessWindowSystem::Cell(HWND list, int row, int column) const {
    HeadlessControl* const found = FindList(list);
    const bool isThere =
        found && found->List.HasRow(row) && Holds(found->List.At(row).Cells, column);
    return isThere ? found->List.At(row).Cells[static_cast<std::size_t>(column)] : CString();
}

int HeadlessWindowSystem::RowImage(HWND list, int row) const {
    HeadlessControl* const found = FindList(list);
    return found && found->List.HasRow(row) ? found->List.At(row).Image : -1;
}

int HeadlessWindowSystem::RowCount(HWND list) const {
    const HeadlessControl* const found = FindList(list);
    return found ? static_cast<int>(found->List.Rows.size()) : 0;
}

void HeadlessWindowSystem::DeleteRow(HWND list, int row) {
    HeadlessControl* const found = FindList(list);
    if (found && found->List.HasRow(row)) {
        auto& rows = found->List.Rows;
        rows.erase(rows.begin() + row);
        for (int* const kept : {&found->List.Focused, &found->List.Mark, &found->List.InView}) {
            *kept = *kept == row ? -1 : *kept > row ? *kept - 1 : *kept;
        }
    }
}

void HeadlessWindowSystem::DeleteRows(HWND list) {
    if (HeadlessControl* const found = FindList(list)) {
        found->List.Rows.clear();
        found->List.Focused = found->List.Mark = found->List.InView = -1;
    }
}

void HeadlessWindowSystem::ScrollTo(HWND list, int row) {
    HeadlessControl* const found = FindList(list);
    if (found && found->List.HasRow(row)) {
        found->List.InView = row;
    }
}

int HeadlessWindowSystem::RowInView(HWND list) const noexcept {
    const HeadlessControl* const found = FindList(list);
    return found ? found->List.InView : -1;
}

bool HeadlessWindowSystem::IsSelected(HWND list, int row) const {
    HeadlessControl* const found = FindList(list);
    return found && found->List.HasRow(row) && found->List.At(row).Selected;
}

int HeadlessWindowSystem::SelectedCount(HWND list) const {
    const HeadlessControl* const found = FindList(list);
    return found ? static_cast<int>(std::ranges::count_if(found->List.Rows, &HeadlessRow::Selected))
                 : 0;
}

int HeadlessWindowSystem::NextSelected(HWND list, int after) const {
    HeadlessControl* const found = FindList(list);
    int row = std::max(after, -1) + 1;
    while (found && found->List.HasRow(row) && !found->List.At(row).Selected) {
        ++row;
    }
    return found && found->List.HasRow(row) ? row : -1;
}

void HeadlessWindowSystem::SelectRow(HWND list, int row, bool selected) {
    HeadlessControl* const found = FindList(list);
    if (found && found->List.HasRow(row)) {
        found->List.At(row).Selected = selected;
    }
}

void HeadlessWindowSystem::SetFocusedRow(HWND list, int row) {
    HeadlessControl* const found = FindList(list);
    if (found && found->List.HasRow(row)) {
        found->List.Focused = row;
    }
}

int HeadlessWindowSystem::FocusedRow(HWND list) const {
    const HeadlessControl* const found = FindList(list);
    return found ? found->List.Focused : -1;
}

void HeadlessWindowSystem::SetSelectionMark(HWND list, int row) {
    if (HeadlessControl* const found = FindList(list)) {
        found->List.Mark = found->List.HasRow(row) ? row : -1;
    }
}

int HeadlessWindowSystem::SelectionMark(HWND list) const {
    const HeadlessControl* const found = FindList(list);
    return found ? found->List.Mark : -1;
}

COLORREF HeadlessWindowSystem::SwatchPixel(HWND list, int row, int x, int y) const noexcept {
    HeadlessControl* const found = FindList(list);
    if (!found || !found->List.HasRow(row)) {
        return CLR_INVALID;
    }
    const CImageList& images = found->List.Images;
    const auto pixels = images.Pixels(found->List.At(row).Image);
    if (pixels.empty() || x < 0 || y < 0 || x >= images.Width() || y >= images.Height()) {
        return CLR_INVALID;
    }
    const auto pixel = pixels[static_cast<std::size_t>(y * images.Width() + x)];
    return pixel == CImageList::Transparent ? CLR_INVALID : pixel;
}

}  // namespace PLATFORM
