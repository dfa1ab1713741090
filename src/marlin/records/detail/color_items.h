// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/marlin_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/color/dxf_color.h>

/// What the one-line text forms of the records share.
namespace MARLINSUITE {

template <class T>
void SetValue(CMarlinString& items, int item, T value) {
    CString text;
    text << value;
    items.SetItem(item, text);
}

/// The color word of a palette index; black for an item that is missing or no palette index.
inline unsigned long PaletteColorItem(const CMarlinString& items, int item) {
    int index = 0;
    items.GetItem(item, index);
    return static_cast<unsigned long>(DXFColor(index));
}

/// Replaces the color by that of an item that is an integer; a negative one counts modulo 2^32.
inline void ReadColorItem(const CMarlinString& items, int item, unsigned long& color) {
    int negative = 0;
    if (!items.GetItem(item, color) && items.GetItem(item, negative)) {
        color = static_cast<unsigned int>(negative);
    }
}

}  // namespace MARLINSUITE
