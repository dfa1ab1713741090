// SPDX-License-Identifier: MIT
#pragma once

#include "output.h"
#include <marlin/color/rgb_color.h>

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace HOST {

/// A table for a person: a line of titles, then the rows, in columns as wide as their widest cell.
/// Rows are filled cell by cell; the caller fills each row to its last column.
class Table {
public:
    enum ALIGN { LEFT, RIGHT };
    struct Column {
        std::string Title;
        ALIGN Align = LEFT;
    };

    Table(std::initializer_list<Column> columns) : m_Columns(columns) {}

    /// UTF-8 without control characters.
    Table& operator<<(std::string text);
    Table& operator<<(int value);
    /// "#rrggbb", after a swatch on a terminal.
    Table& operator<<(const RGBColor& color);
    /// Leaves cells empty.
    Table& Skip(std::size_t numCells);

    void AppendTo(Output& output) const;

private:
    struct Cell {
        std::string Text;
        std::optional<RGBColor> Swatch;
    };

    [[nodiscard]] std::vector<std::size_t> Widths(bool hasColors) const;
    static void AppendCell(std::string& text, const Cell& cell, ALIGN align, std::size_t width,
                           bool hasColors);

    std::vector<Column> m_Columns;
    std::vector<Cell> m_Cells;
};

}  // namespace HOST
