// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

class CImageList;

inline constexpr int LVCFMT_LEFT = 0;
inline constexpr int LVNI_SELECTED = 2;
inline constexpr int LVSIL_SMALL = 1;
inline constexpr UINT LVIS_FOCUSED = 1;
inline constexpr UINT LVIS_SELECTED = 2;

/// A report list: rows of texts in columns, the first beside an image.
class MARLIN_API CListCtrl : public CWnd {
public:
    CListCtrl() noexcept = default;
    ~CListCtrl() override;

    [[nodiscard]] int GetItemCount() const;
    [[nodiscard]] CString GetItemText(int row, int column) const;
    [[nodiscard]] UINT GetSelectedCount() const;
    /// The next row below `after` (-1: from the top) that is selected, with `LVNI_SELECTED`;
    /// with 0, just the next row. -1 for none.
    [[nodiscard]] int GetNextItem(int after, int flags) const;
    /// Those states of the mask that the row has.
    [[nodiscard]] UINT GetItemState(int row, UINT mask) const;

    int InsertColumn(int column, const char* heading, int format = LVCFMT_LEFT, int width = -1);
    /// Appends or inserts a row; returns where it stands.
    int InsertItem(int row, const char* text, int image);
    void SetItemText(int row, int column, const char* text);
    void DeleteItem(int row);
    void DeleteAllItems();

    /// The list shows the images that there are at that moment.
    void SetImageList(const CImageList* images, int kind);
    void EnsureVisible(int row, bool partialIsEnough);
    void SetSelectionMark(int row);
    void SetItemState(int row, UINT state, UINT mask);
};
