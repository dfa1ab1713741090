// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/report_list.h>
#include <marlin/qt/detail/row_model.h>
#include <marlin/qt/detail/row_painter.h>

#include <QTreeView>
#include <vector>

namespace PLATFORM::detail {

/// A report list as a widget.
class ListWidget final : public QTreeView, public ReportList {
public:
    explicit ListWidget(HWND handle);

    [[nodiscard]] int ColumnCount() const override { return m_Rows.columnCount(); }
    void InsertColumn(int column, const CString& heading, int width) override;
    [[nodiscard]] CString Heading(int column) const override;
    [[nodiscard]] int ColumnWidth(int column) const override;
    /// Makes each column at least as wide as it was given and as its heading and the rows in view
    /// need, which is at most the width of 24 letters, and the list wide enough for all columns.
    void FitColumns();

    [[nodiscard]] int RowCount() const override { return m_Rows.rowCount(); }
    void SetRowCount(int count) override;
    void DeleteRow(int row) override;
    void SetImages(const CImageList* images) override;
    void ScrollTo(int row) override;
    void EditLabel(int row) override;

    void SelectRows(int first, int last, bool selected) override;
    [[nodiscard]] bool IsSelected(int row) const override;
    [[nodiscard]] int SelectedCount() const override;
    void SetFocusedRow(int row) override;
    [[nodiscard]] int FocusedRow() const override { return currentIndex().row(); }
    void SetSelectionMark(int row) override;
    [[nodiscard]] int SelectionMark() const override { return m_Mark; }

protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    [[nodiscard]] bool MovesBy(const QKeyEvent& event);

    HWND m_Handle;
    RowModel m_Rows;
    RowPainter m_Painter;
    std::vector<int> m_Widths;  ///< Of the columns, as given.
    int m_Mark = -1;
    bool m_IsChangedByProgram = false;
    bool m_IsSecondClick = false;
};

}  // namespace PLATFORM::detail
