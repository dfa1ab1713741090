// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/detail/headless_list.h>

#include <algorithm>
#include <cassert>

namespace PLATFORM::detail {

int HeadlessList::ColumnCount() const {
    return static_cast<int>(m_Columns.size());
}

void HeadlessList::InsertColumn(int column, const CString& heading, int width) {
    m_Columns.insert(m_Columns.begin() + column, {heading, width});
}

CString HeadlessList::Heading(int column) const {
    return m_Columns[static_cast<std::size_t>(column)].Heading;
}

int HeadlessList::ColumnWidth(int column) const {
    return m_Columns[static_cast<std::size_t>(column)].Width;
}

void HeadlessList::SetRowCount(int count) {
    m_IsSelected.assign(static_cast<std::size_t>(count), false);
    m_Focused = m_Mark = m_InView = m_Edited = -1;
}

void HeadlessList::DeleteRow(int row) {
    m_IsSelected.erase(m_IsSelected.begin() + row);
    // These stay with their rows, as those move up.
    for (int* const kept : {&m_Focused, &m_Mark, &m_InView, &m_Edited}) {
        *kept = *kept == row ? -1 : *kept > row ? *kept - 1 : *kept;
    }
}

void HeadlessList::SetImages(const CImageList* images) {
    m_Images = images ? *images : CImageList();
}

void HeadlessList::SelectRows(int first, int last, bool selected) {
    assert(HasRow(first) && HasRow(last));
    std::fill(m_IsSelected.begin() + first, m_IsSelected.begin() + last + 1, selected);
}

bool HeadlessList::IsSelected(int row) const {
    assert(HasRow(row));
    return m_IsSelected[static_cast<std::size_t>(row)];
}

int HeadlessList::SelectedCount() const {
    return static_cast<int>(std::ranges::count(m_IsSelected, true));
}

void HeadlessList::SelectOnly(const std::vector<int>& rows) {
    m_IsSelected.assign(m_IsSelected.size(), false);
    for (const int row : rows) {
        SelectRows(row, row, true);
    }
    if (!rows.empty()) {
        m_Mark = m_Focused = rows.back();
    }
}

void HeadlessList::SelectUpTo(int row) {
    m_Mark = std::max(m_Mark, 0);
    m_IsSelected.assign(m_IsSelected.size(), false);
    SelectRows(std::min(m_Mark, row), std::max(m_Mark, row), true);
    m_Focused = row;
}

COLORREF HeadlessList::ImagePixel(int image, int x, int y) const noexcept {
    const auto pixels = m_Images.Pixels(image);
    const bool isInside = x >= 0 && y >= 0 && x < m_Images.Width() && y < m_Images.Height();
    if (pixels.empty() || !isInside) {
        return CLR_INVALID;
    }
    const auto pixel = pixels[static_cast<std::size_t>(y * m_Images.Width() + x)];
    return pixel == CImageList::Transparent ? CLR_INVALID : pixel;
}

}  // namespace PLATFORM::detail
