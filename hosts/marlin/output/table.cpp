// SPDX-License-Identifier: MIT
#include "table.h"

#include "swatch.h"
#include <marlin/color/color_text.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace HOST {

using MARLINSUITE::ColorText;

namespace {

constexpr std::size_t swatchWidth = 3;

std::size_t NumCharacters(std::string_view utf8) {
    return static_cast<std::size_t>(std::ranges::count_if(
        utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

Table& Table::operator<<(std::string text) {
    m_Cells.push_back({std::move(text), std::nullopt});
    return *this;
}

Table& Table::operator<<(int value) {
    return *this << NumberText(value);
}

Table& Table::operator<<(const RGBColor& color) {
    m_Cells.push_back({ColorText(color), color});
    return *this;
}

Table& Table::Skip(std::size_t numCells) {
    m_Cells.resize(m_Cells.size() + numCells);
    return *this;
}

std::vector<std::size_t> Table::Widths(bool hasColors) const {
    std::vector<std::size_t> widths;
    for (const Column& column : m_Columns) {
        widths.push_back(NumCharacters(column.Title));
    }
    for (std::size_t i = 0; i < m_Cells.size(); ++i) {
        const std::size_t swatch = hasColors && m_Cells[i].Swatch ? swatchWidth : 0;
        std::size_t& width = widths[i % widths.size()];
        width = std::max(width, swatch + NumCharacters(m_Cells[i].Text));
    }
    return widths;
}

void Table::AppendCell(std::string& text, const Cell& cell, ALIGN align, std::size_t width,
                       bool hasColors) {
    std::size_t used = NumCharacters(cell.Text);
    if (hasColors && cell.Swatch) {
        text += Swatch(*cell.Swatch);
        used += swatchWidth;
    }
    const std::string blanks(width - std::min(width, used), ' ');
    text += align == RIGHT ? blanks + cell.Text : cell.Text + blanks;
}

void Table::AppendTo(Output& output) const {
    const std::vector<std::size_t> widths = Widths(output.HasColors);
    std::string& text = output.Text;
    const auto endLine = [&text] {
        text.erase(text.find_last_not_of(' ') + 1);
        text += '\n';
    };
    for (std::size_t i = 0; i < m_Columns.size(); ++i) {
        text += i == 0 ? "" : "  ";
        AppendCell(text, {m_Columns[i].Title, std::nullopt}, m_Columns[i].Align, widths[i], false);
    }
    endLine();
    for (std::size_t i = 0; i < m_Cells.size(); ++i) {
        const std::size_t column = i % m_Columns.size();
        text += column == 0 ? "" : "  ";
        AppendCell(text, m_Cells[i], m_Columns[column].Align, widths[column], output.HasColors);
        if (column + 1 == m_Columns.size()) {
            endLine();
        }
    }
}

}  // namespace HOST
