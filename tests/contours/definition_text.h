// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/core/number_text.h>

#include <string>

/// "level/color/type/width/annotate ".
inline std::string TextOf(const ContourDefinitionList::ContourDefInfo& definition) {
    std::string text;
    MARLINSUITE::AppendShortest(text, definition.Level);
    MARLINSUITE::AppendNumber(text += '/', definition.Color);
    MARLINSUITE::AppendNumber(text += '/', definition.LineType);
    MARLINSUITE::AppendShortest(text += '/', definition.LineWidth);
    return text + (definition.Annotate ? "/1 " : "/0 ");
}

inline std::string TextOf(const ContourDefinitionList& list) {
    std::string text;
    for (int i = 0; i < list.NumContours(); ++i) {
        text += TextOf(list[i]);
    }
    return text;
}
