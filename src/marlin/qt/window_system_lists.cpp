// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/state.h>

#include <algorithm>

namespace PLATFORM {

void QtWindowSystem::InsertColumn(HWND list, int column, const CString& heading, int width) {
    if (auto* const found = Find<ListWidget>(list)) {
        found->AddColumn(column, QtText(heading.View()), width);
    }
}

CString QtWindowSystem::Heading(HWND list, int column) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? TextOf(found->Heading(column)) : CString();
}

int QtWindowSystem::ColumnWidth(HWND list, int column) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? found->WidthOf(column) : 0;
}

void QtWindowSystem::SetImages(HWND list, const CImageList* images) {
    if (auto* const found = Find<ListWidget>(list)) {
        found->SetImages(images ? *images : CImageList());
    }
}

void QtWindowSystem::InsertRow(HWND list, int row, const CString& text, int image) {
    if (auto* const found = Find<ListWidget>(list)) {
        found->AddRow(row, QtText(text.View()), image);
    }
}

void QtWindowSystem::SetCell(HWND list, int row, int column, const CString& text) {
    auto* const found = Find<ListWidget>(list);
    if (found && found->HasRow(row) && column >= 0 && column < found->columnCount()) {
        found->topLevelItem(row)->setText(column, QtText(text.View()));
    }
}

CString QtWindowSystem::Cell(HWND list, int row, int column) const {
    const auto* const found = Find<ListWidget>(list);
    return found && found->HasRow(row) ? TextOf(found->topLevelItem(row)->text(column)) : CString();
}

int QtWindowSystem::RowImage(HWND list, int row) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? found->ImageOf(row) : -1;
}

int QtWindowSystem::RowCount(HWND list) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? found->topLevelItemCount() : 0;
}

void QtWindowSystem::DeleteRow(HWND list, int row) {
    if (auto* const found = Find<ListWidget>(list)) {
        found->RemoveRow(row);
    }
}

void QtWindowSystem::DeleteRows(HWND list) {
    if (auto* const found = Find<ListWidget>(list)) {
        found->RemoveAll();
    }
}

void QtWindowSystem::ScrollTo(HWND list, int row) {
    auto* const found = Find<ListWidget>(list);
    if (found && found->HasRow(row)) {
        found->scrollToItem(found->topLevelItem(row));
    }
}

bool QtWindowSystem::IsSelected(HWND list, int row) const {
    const auto* const found = Find<ListWidget>(list);
    return found && found->HasRow(row) && found->topLevelItem(row)->isSelected();
}

int QtWindowSystem::SelectedCount(HWND list) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? static_cast<int>(found->selectionModel()->selectedRows().size()) : 0;
}

int QtWindowSystem::NextSelected(HWND list, int after) const {
    int row = std::max(after, -1) + 1;
    const int count = RowCount(list);
    while (row < count && !IsSelected(list, row)) {
        ++row;
    }
    return row < count ? row : -1;
}

void QtWindowSystem::SelectRow(HWND list, int row, bool selected) {
    auto* const found = Find<ListWidget>(list);
    if (found && found->HasRow(row)) {
        const ListWidget::Act act(*found);
        found->topLevelItem(row)->setSelected(selected);
    }
}

void QtWindowSystem::SetFocusedRow(HWND list, int row) {
    auto* const found = Find<ListWidget>(list);
    if (found && found->HasRow(row)) {
        const ListWidget::Act act(*found);
        found->setCurrentItem(found->topLevelItem(row), 0, QItemSelectionModel::NoUpdate);
    }
}

int QtWindowSystem::FocusedRow(HWND list) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? found->currentIndex().row() : -1;
}

void QtWindowSystem::SetSelectionMark(HWND list, int row) {
    if (auto* const found = Find<ListWidget>(list)) {
        found->SetMark(row);
    }
}

int QtWindowSystem::SelectionMark(HWND list) const {
    const auto* const found = Find<ListWidget>(list);
    return found ? found->Mark() : -1;
}

}  // namespace PLATFORM
