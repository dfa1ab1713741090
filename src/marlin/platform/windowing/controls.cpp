// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_button.h>
#include <marlin/platform/windowing/c_combo_box.h>
#include <marlin/platform/windowing/c_list_ctrl.h>
#include <marlin/platform/windowing/c_spin_button_ctrl.h>
#include <marlin/platform/windowing/window_system.h>

#include <algorithm>

namespace {

PLATFORM::WindowSystem& System() {
    return PLATFORM::WindowSystem::Current();
}

}  // namespace

CButton::~CButton() = default;

void CButton::DrawItem(DRAWITEMSTRUCT*) {}

bool CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
        return true;
    }
    return CWnd::OnChildNotify(message, wParam, lParam, result);
}

CComboBox::~CComboBox() = default;

int CComboBox::GetCurSel() const {
    return System().CurrentItem(m_hWnd);
}

int CComboBox::GetCount() const {
    return System().ItemCount(m_hWnd);
}

void CComboBox::GetLBText(int item, CString& text) const {
    text = System().ItemText(m_hWnd, item);
}

void CComboBox::SetCurSel(int item) {
    System().SetCurrentItem(m_hWnd, item);
}

int CComboBox::AddString(const char* text) {
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

CSpinButtonCtrl::~CSpinButtonCtrl() = default;

void CSpinButtonCtrl::SetRange(int lower, int upper) {
    System().SetRange(m_hWnd, lower, upper);
}

CListCtrl::~CListCtrl() = default;

int CListCtrl::GetItemCount() const {
    return System().RowCount(m_hWnd);
}

CString CListCtrl::GetItemText(int row, int column) const {
    return System().Cell(m_hWnd, row, column);
}

UINT CListCtrl::GetSelectedCount() const {
    return static_cast<UINT>(System().SelectedCount(m_hWnd));
}

int CListCtrl::GetNextItem(int after, int flags) const {
    if (flags == LVNI_SELECTED) {
        return System().NextSelected(m_hWnd, after);
    }
    return after + 1 < GetItemCount() ? after + 1 : -1;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const {
    const UINT selected = System().IsSelected(m_hWnd, row) ? LVIS_SELECTED : 0;
    const UINT focused = System().FocusedRow(m_hWnd) == row ? LVIS_FOCUSED : 0;
    return (selected | focused) & mask;
}

int CListCtrl::InsertColumn(int column, const char* heading, int, int width) {
    System().InsertColumn(m_hWnd, column, heading, width);
    return column;
}

int CListCtrl::InsertItem(int row, const char* text, int image) {
    const int position = std::clamp(row, 0, GetItemCount());
    System().InsertRow(m_hWnd, position, text, image);
    return position;
}

void CListCtrl::SetItemText(int row, int column, const char* text) {
    System().SetCell(m_hWnd, row, column, text);
}

void CListCtrl::DeleteItem(int row) {
    System().DeleteRow(m_hWnd, row);
}

void CListCtrl::DeleteAllItems() {
    System().DeleteRows(m_hWnd);
}

void CListCtrl::SetImageList(const CImageList* images, int) {
    System().SetImages(m_hWnd, images);
}

void CListCtrl::EnsureVisible(int row, bool) {
    System().ScrollTo(m_hWnd, row);
}

void CListCtrl::SetSelectionMark(int row) {
    System().SetSelectionMark(m_hWnd, row);
}

void CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    if ((mask & LVIS_SELECTED) != 0) {
        System().SelectRow(m_hWnd, row, (state & LVIS_SELECTED) != 0);
    }
    if ((mask & state & LVIS_FOCUSED) != 0) {
        System().SetFocusedRow(m_hWnd, row);
    }
}
