// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_list_ctrl.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/window_system.h>

#include <algorithm>

using PLATFORM::ReportList;

namespace {

// The inside of the control, or null for an object without one.
ReportList* ListOf(const CListCtrl& control) {
    return PLATFORM::WindowSystem::Current().FindList(control.GetSafeHwnd());
}

// The same, and null when the row is not there.
ReportList* ListWith(const CListCtrl& control, int row) {
    ReportList* const list = ListOf(control);
    return list && row >= 0 && row < list->RowCount() ? list : nullptr;
}

ReportList* ListWith(const CListCtrl& control, int row, int column) {
    ReportList* const list = ListWith(control, row);
    return list && column >= 0 && column < list->ColumnCount() ? list : nullptr;
}

}  // namespace

int CListCtrl::GetItemCount() const {
    const ReportList* const list = ListOf(*this);
    return list ? list->RowCount() : 0;
}

CString CListCtrl::GetItemText(int row, int column) const {
    const ReportList* const list = ListWith(*this, row, column);
    return list ? PLATFORM::AskCell(GetSafeHwnd(), row, column).Text : CString();
}

UINT CListCtrl::GetSelectedCount() const {
    const ReportList* const list = ListOf(*this);
    return list ? static_cast<UINT>(list->SelectedCount()) : 0;
}

int CListCtrl::GetNextItem(int after, int flags) const {
    const ReportList* const list = ListOf(*this);
    const int count = GetItemCount();
    int row = std::max(after, -1) + 1;
    while (row < count && flags == LVNI_SELECTED && !list->IsSelected(row)) {
        ++row;
    }
    return row < count ? row : -1;
}

int CListCtrl::InsertColumn(int column, const char* heading, int, int width) {
    ReportList* const list = ListOf(*this);
    if (!list) {
        return -1;
    }
    const int place = std::clamp(column, 0, list->ColumnCount());
    list->InsertColumn(place, heading, width);
    return place;
}

void CListCtrl::SetItemCountEx(int count) {
    if (ReportList* const list = ListOf(*this)) {
        list->SetRowCount(std::max(count, 0));
    }
}

void CListCtrl::DeleteItem(int row) {
    if (ReportList* const list = ListWith(*this, row)) {
        list->DeleteRow(row);
    }
}

void CListCtrl::SetImageList(const CImageList* images, int) {
    if (ReportList* const list = ListOf(*this)) {
        list->SetImages(images);
    }
}

void CListCtrl::EnsureVisible(int row, bool) {
    if (ReportList* const list = ListWith(*this, row)) {
        list->ScrollTo(row);
    }
}

void CListCtrl::EditLabel(int row) {
    if (ReportList* const list = ListWith(*this, row)) {
        list->EditLabel(row);
    }
}

void CListCtrl::SetSelectionMark(int row) {
    if (ReportList* const list = ListOf(*this)) {
        list->SetSelectionMark(ListWith(*this, row) ? row : -1);
    }
}

void CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    constexpr int everyRow = -1;
    ReportList* const list = ListWith(*this, row == everyRow ? 0 : row);
    if (list && (mask & LVIS_SELECTED) != 0) {
        list->SelectRows(std::max(row, 0), row == everyRow ? list->RowCount() - 1 : row,
                         (state & LVIS_SELECTED) != 0);
    }
    if (list && row != everyRow && (mask & state & LVIS_FOCUSED) != 0) {
        list->SetFocusedRow(row);
    }
}
