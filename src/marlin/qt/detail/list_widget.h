// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/report_list.h>

#include <QIcon>
#include <QTreeWidget>
#include <vector>

namespace PLATFORM::detail {

/// A report list as a widget.
class ListWidget final : public QTreeWidget, public ReportList {
public:
    explicit ListWidget(HWND handle);

    [[nodiscard]] int ColumnCount() const override { return columnCount(); }
    void InsertColumn(int column, const CString& heading, int width) override;
    [[nodiscard]] CString Heading(int column) const override;
    [[nodiscard]] int ColumnWidth(int column) const override;
    /// Makes each column at least as wide as it was given and as its heading and the rows in view
    /// need, and the list wide enough for all columns.
    void FitColumns();

    [[nodiscard]] int RowCount() const override { return topLevelItemCount(); }
    void InsertRow(int row, const CString& text, int image) override;
    void DeleteRow(int row) override;
    void DeleteRows() override;
    void SetCell(int row, int column, const CString& text) override;
    [[nodiscard]] CString Cell(int row, int column) const override;
    void SetImages(const CImageList* images) override;
    void ScrollTo(int row) override;

    void SelectRow(int row, bool selected) override;
    [[nodiscard]] bool IsSelected(int row) const override;
    [[nodiscard]] int SelectedCount() const override;
    void SetFocusedRow(int row) override;
    [[nodiscard]] int FocusedRow() const override { return currentIndex().row(); }
    void SetSelectionMark(int row) override { m_Mark = row; }
    [[nodiscard]] int SelectionMark() const override { return m_Mark; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void ShowImage(QTreeWidgetItem& item) const;

    HWND m_Handle;
    std::vector<int> m_Widths;  ///< Of the columns, as given.
    std::vector<QIcon> m_Icons;
    int m_Mark = -1;
    bool m_IsChangedByProgram = false;
    bool m_IsSecondClick = false;
};

}  // namespace PLATFORM::detail
