// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/records/text_info.h>

#include <string>

inline TextInfo Style(const std::string& font, float size, int style = 0) {
    TextInfo ti;
    ti.SetFont(font);
    ti.SetSize(size);
    ti.SetStyle(static_cast<TextInfo::STYLE>(style));
    return ti;
}
