// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/report_list.h>

#include <utility>
#include <vector>

namespace PLATFORM::detail {

/// A list kept in memory.
class HeadlessList final : public ReportList {
public:
    [[nodiscard]] int ColumnCount() const override;
    void InsertColumn(int column, const CString& heading, int width) override;
    [[nodiscard]] CString Heading(int column) const override;
    [[nodiscard]] int ColumnWidth(int column) const override;

    [[nodiscard]] int RowCount() const override { return static_cast<int>(m_IsSelected.size()); }
    void SetRowCount(int count) override;
    void DeleteRow(int row) override;
    void SetImages(const CImageList* images) override;
    void ScrollTo(int row) override { m_InView = row; }
    void EditLabel(int row) override { m_Edited = row; }

    void SelectRows(int first, int last, bool selected) override;
    [[nodiscard]] bool IsSelected(int row) const override;
    [[nodiscard]] int SelectedCount() const override;
    void SetFocusedRow(int row) override { m_Focused = row; }
    [[nodiscard]] int FocusedRow() const override { return m_Focused; }
    void SetSelectionMark(int row) override { m_Mark = row; }
    [[nodiscard]] int SelectionMark() const override { return m_Mark; }

    [[nodiscard]] bool HasRow(int row) const noexcept { return row >= 0 && row < RowCount(); }
    /// The row last scrolled to, -1 for none.
    [[nodiscard]] int RowInView() const noexcept { return m_InView; }
    /// The row whose text is being typed, -1 for none; it is so no more.
    [[nodiscard]] int TakeEditedRow() noexcept { return std::exchange(m_Edited, -1); }
    /// A pixel of an image; CLR_INVALID where there is none, or a transparent one.
    [[nodiscard]] COLORREF ImagePixel(int image, int x, int y) const noexcept;
    /// Selects these rows and no other, the last of them the focused one, as a user's clicks do.
    void SelectOnly(const std::vector<int>& rows);
    /// Selects the rows from the mark to this one, as a user's arrow keys with Shift do.
    void SelectUpTo(int row);

private:
    struct Column {
        CString Heading;
        int Width = 0;
    };

    std::vector<Column> m_Columns;
    std::vector<bool> m_IsSelected;  ///< Of each row.
    CImageList m_Images;
    int m_Focused = -1;
    int m_Mark = -1;
    int m_InView = -1;
    int m_Edited = -1;
};

}  // namespace PLATFORM::detail
