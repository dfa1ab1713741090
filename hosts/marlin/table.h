// SPDX-License-Identifier: MIT
#pragma once

#include "output.h"
#include <marlin/color/rgb_color.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace HOST {

/// A table for the eye: a line of titles, then the rows, in columns as wide as their widest cell.
/// Rows are filled cell by cell, each row with as many as there are columns.
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
    /// Its text; with a swatch before it on a terminal.
    Table& operator<<(const RGBColor& color);

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
