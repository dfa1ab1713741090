// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

class CImageList;

namespace PLATFORM {

/// The columns and the selection of a list control, as its window system keeps them. Its rows are
/// only counted: what a cell shows is asked of the dialog (`AskCell`) whenever it is needed. Empty
/// at first. A row or column that is given has to be there, or to be the number after the last one
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
    /// Shows that many rows anew; none of them is selected or has the focus.
    virtual void SetRowCount(int count) = 0;
    /// The rows after it move up, with their selection.
    virtual void DeleteRow(int row) = 0;
    /// Copies the images; null takes them away.
    virtual void SetImages(const CImageList* images) = 0;
    virtual void ScrollTo(int row) = 0;
    /// Lets the user type a text in place of that in column 0.
    virtual void EditLabel(int row) = 0;

    /// From `first` to `last`, both included.
    virtual void SelectRows(int first, int last, bool selected) = 0;
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
