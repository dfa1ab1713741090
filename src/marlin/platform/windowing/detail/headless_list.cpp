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

const HeadlessList::Row& HeadlessList::At(int row) const {
    assert(HasRow(row));
    return m_Rows[static_cast<std::size_t>(row)];
}

HeadlessList::Row& HeadlessList::At(int row) {
    assert(HasRow(row));
    return m_Rows[static_cast<std::size_t>(row)];
}

int HeadlessList::RowCount() const {
    return static_cast<int>(m_Rows.size());
}

void HeadlessList::InsertRow(int row, const CString& text, int image) {
    m_Rows.insert(m_Rows.begin() + row, {{text}, image, false});
}

void HeadlessList::DeleteRow(int row) {
    m_Rows.erase(m_Rows.begin() + row);
    // These stay with their rows, as those move up.
    for (int* const kept : {&m_Focused, &m_Mark, &m_InView}) {
        *kept = *kept == row ? -1 : *kept > row ? *kept - 1 : *kept;
    }
}

void HeadlessList::DeleteRows() {
    m_Rows.clear();
    m_Focused = m_Mark = m_InView = -1;
}

void HeadlessList::SetCell(int row, int column, const CString& text) {
    // A row starts with its first cell alone.
    std::vector<CString>& cells = At(row).Cells;
    const auto place = static_cast<std::size_t>(column);
    cells.resize(std::max(cells.size(), place + 1));
    cells[place] = text;
}

CString HeadlessList::Cell(int row, int column) const {
    const std::vector<CString>& cells = At(row).Cells;
    const auto place = static_cast<std::size_t>(column);
    return place < cells.size() ? cells[place] : CString();
}

void HeadlessList::SetImages(const CImageList* images) {
    m_Images = images ? *images : CImageList();
}

void HeadlessList::SelectRow(int row, bool selected) {
    At(row).IsSelected = selected;
}

bool HeadlessList::IsSelected(int row) const {
    return At(row).IsSelected;
}

int HeadlessList::SelectedCount() const {
    return static_cast<int>(std::ranges::count_if(m_Rows, &Row::IsSelected));
}

void HeadlessList::SelectOnly(const std::vector<int>& rows) {
    for (Row& row : m_Rows) {
        row.IsSelected = false;
    }
    for (const int row : rows) {
        SelectRow(row, true);
    }
    if (!rows.empty()) {
        m_Mark = m_Focused = rows.back();
    }
}

COLORREF HeadlessList::SwatchPixel(int row, int x, int y) const noexcept {
    const auto pixels = HasRow(row) ? m_Images.Pixels(At(row).Image) : std::span<const unsigned>();
    const bool isInside = x >= 0 && y >= 0 && x < m_Images.Width() && y < m_Images.Height();
    if (pixels.empty() || !isInside) {
        return CLR_INVALID;
    }
    const auto pixel = pixels[static_cast<std::size_t>(y * m_Images.Width() + x)];
    return pixel == CImageList::Transparent ? CLR_INVALID : pixel;
}

}  // namespace PLATFORM::detail
