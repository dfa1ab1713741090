// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/marlin_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/color/dxf_color.h>

#include <string>
#include <string_view>

/// The one-line texts of lines and pens.
namespace MARLINSUITE::detail {

/// The fewest items that make a record.
constexpr int FewestPenItems = 3;

inline CMarlinString SplitPen(const std::string& text) {
    return {CString(std::string_view(text)), ',', true};
}

template <class... T>
std::string JoinPen(const T&... values) {
    CMarlinString items(',');
    const auto append = [&items](const auto& value) {
        CString text;
        text << value;
        items.SetItem(items.Size(), text);
    };
    (append(values), ...);
    return items.String().GetString();
}

/// The color of item 1, a palette index, or of item 3, a color word that a program may have
/// written as a negative number.
inline unsigned long PenColor(const CMarlinString& items) {
    int index = 0;
    items.GetItem(1, index);
    unsigned long color = DXFColor(index);
    int negative = 0;
    if (!items.GetItem(3, color) && items.GetItem(3, negative)) {
        color = static_cast<unsigned int>(negative);
    }
    return color;
}

}  // namespace MARLINSUITE::detail
