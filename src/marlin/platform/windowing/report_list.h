// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

class CImageList;

namespace PLATFORM {

/// The rows, columns and selection of a list control, as its window system keeps them. Empty at
/// first. A row or column that is given has to be there, or to be the number after the last one
/// where something is inserted: `CListCtrl` checks them. The user's own changes of the selection
/// are reported to the dialog, those made here are not.
class MARLIN_API ReportList {
public:
    ReportList() = default;
    ReportList(const ReportList&) = delete;
    ReportList& operator=(const ReportList&) = delete;
    virtual ~ReportList() = default;

    [[nodiscard]] virtual int ColumnCount() const = 0;
    /// `width` in pixels; a window system may show the column wider.
    virtual void InsertColumn(int column, const CString& heading, int width) = 0;
    [[nodiscard]] virtual CString Heading(int column) const = 0;
    /// As it was given.
    [[nodiscard]] virtual int ColumnWidth(int column) const = 0;

    [[nodiscard]] virtual int RowCount() const = 0;
    /// `text` goes into column 0, beside the image of that index.
    virtual void InsertRow(int row, const CString& text, int image) = 0;
    virtual void DeleteRow(int row) = 0;
    virtual void DeleteRows() = 0;
    virtual void SetCell(int row, int column, const CString& text) = 0;
    [[nodiscard]] virtual CString Cell(int row, int column) const = 0;
    /// Copies the images; null takes them away.
    virtual void SetImages(const CImageList* images) = 0;
    virtual void ScrollTo(int row) = 0;

    virtual void SelectRow(int row, bool selected) = 0;
    [[nodiscard]] virtual bool IsSelected(int row) const = 0;
    [[nodiscard]] virtual int SelectedCount() const = 0;
    /// The row that the keyboard moves from; -1 for none.
    virtual void SetFocusedRow(int row) = 0;
    [[nodiscard]] virtual int FocusedRow() const = 0;
    /// The row that a range of rows is selected from; -1 for none, also when it is set.
    virtual void SetSelectionMark(int row) = 0;
    [[nodiscard]] virtual int SelectionMark() const = 0;
};

}  // namespace PLATFORM
