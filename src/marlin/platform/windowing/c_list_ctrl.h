// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

class CImageList;

inline constexpr int LVCFMT_LEFT = 0;
inline constexpr int LVNI_SELECTED = 2;
inline constexpr int LVSIL_SMALL = 1;
inline constexpr UINT LVIS_FOCUSED = 1;
inline constexpr UINT LVIS_SELECTED = 2;

/// A report list: rows of texts in columns, the text of column 0 beside an image. It counts its
/// rows and asks the dialog for what it shows of them, by `LVN_GETDISPINFO`, so that a list of a
/// million rows costs no more than one of ten. Without a control, and for a row or column that is
/// not there, an operation does nothing and returns an empty result or -1.
class MARLIN_API CListCtrl : public CWnd {
public:
    [[nodiscard]] int GetItemCount() const;
    [[nodiscard]] CString GetItemText(int row, int column) const;
    [[nodiscard]] UINT GetSelectedCount() const;
    /// The next row after `after` (-1: from the top) that is selected, with `LVNI_SELECTED`;
    /// with 0, the next row. -1 for none.
    [[nodiscard]] int GetNextItem(int after, int flags) const;

    /// `width` in pixels. Returns the index of the column, which is always left-aligned.
    int InsertColumn(int column, const char* heading, int format = LVCFMT_LEFT, int width = -1);
    /// Shows that many rows, all anew: what was selected is so no more.
    void SetItemCountEx(int count);
    /// The rows after it move up, with their selection.
    void DeleteItem(int row);

    /// Copies the images that there are at that moment.
    void SetImageList(const CImageList* images, int kind);
    void EnsureVisible(int row, bool partialIsEnough);
    /// Lets the user type another text into column 0, which `LVN_ENDLABELEDIT` reports.
    void EditLabel(int row);
    /// The row that a range of rows is selected from.
    void SetSelectionMark(int row);
    /// Sets the states of the mask to those in `state`, of every row for -1; the focus can only be
    /// given, to one row.
    void SetItemState(int row, UINT state, UINT mask);
};
