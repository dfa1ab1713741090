// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/report_list.h>

#include <vector>

namespace PLATFORM::detail {

/// A list kept in memory.
class HeadlessList final : public ReportList {
public:
    [[nodiscard]] int ColumnCount() const override;
    void InsertColumn(int column, const CString& heading, int width) override;
    [[nodiscard]] CString Heading(int column) const override;
    [[nodiscard]] int ColumnWidth(int column) const override;

    [[nodiscard]] int RowCount() const override;
    void InsertRow(int row, const CString& text, int image) override;
    void DeleteRow(int row) override;
    void DeleteRows() override;
    void SetCell(int row, int column, const CString& text) override;
    [[nodiscard]] CString Cell(int row, int column) const override;
    void SetImages(const CImageList* images) override;
    void ScrollTo(int row) override { m_InView = row; }

    void SelectRow(int row, bool selected) override;
    [[nodiscard]] bool IsSelected(int row) const override;
    [[nodiscard]] int SelectedCount() const override;
    void SetFocusedRow(int row) override { m_Focused = row; }
    [[nodiscard]] int FocusedRow() const override { return m_Focused; }
    void SetSelectionMark(int row) override { m_Mark = row; }
    [[nodiscard]] int SelectionMark() const override { return m_Mark; }

    [[nodiscard]] bool HasRow(int row) const noexcept { return row >= 0 && row < RowCount(); }
    /// The row last scrolled to, -1 for none.
    [[nodiscard]] int RowInView() const noexcept { return m_InView; }
    /// A pixel of a row's image; CLR_INVALID where there is none, or a transparent one.
    [[nodiscard]] COLORREF SwatchPixel(int row, int x, int y) const noexcept;
    /// Selects these rows and no other, the last of them the focused one, as a user's clicks do.
    void SelectOnly(const std::vector<int>& rows);

private:
    struct Column {
        CString Heading;
        int Width = 0;
    };
    struct Row {
        std::vector<CString> Cells;
        int Image = -1;
        bool IsSelected = false;
    };

    [[nodiscard]] const Row& At(int row) const;
    [[nodiscard]] Row& At(int row);

    std::vector<Column> m_Columns;
    std::vector<Row> m_Rows;
    CImageList m_Images;
    int m_Focused = -1;
    int m_Mark = -1;
    int m_InView = -1;
};

}  // namespace PLATFORM::detail
