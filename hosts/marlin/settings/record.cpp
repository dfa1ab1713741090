// SPDX-License-Identifier: MIT
#include "record.h"

#include "output/printable.h"
#include <marlin/color/dxf_color.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <variant>

namespace HOST {

namespace {

using MARLINSUITE::RecordField;
using MARLINSUITE::RecordKey;

std::string ValueText(const MARLINSUITE::RecordValue& value) {
    const auto textOf = [](const auto& typed) -> std::string {
        using Type = std::decay_t<decltype(typed)>;
        if constexpr (std::is_same_v<Type, std::string>) {
            return typed;
        } else if constexpr (std::is_same_v<Type, bool>) {
            return typed ? "yes" : "no";
        } else if constexpr (std::is_arithmetic_v<Type>) {
            return NumberText(typed);
        } else {
            return "";  // colors are shown by themselves
        }
    };
    return std::visit(textOf, value);
}

std::string MeaningOf(const RecordField& field) {
    const auto meaningOf = [&key = field.Key](const auto& typed) -> std::string {
        using Type = std::decay_t<decltype(typed)>;
        if constexpr (std::is_arithmetic_v<Type>) {
            return key.MeaningOf(static_cast<double>(typed));
        } else if constexpr (std::is_same_v<Type, RGBColor>) {
            return key.Meaning + std::string(", palette index ") +
                   NumberText(DXFColor(typed).Index());
        } else {
            return key.Meaning;
        }
    };
    // Lengths are in the units of the plot, which go without saying.
    const bool isAngle = std::string_view(field.Key.Unit) == RecordKey::Degrees;
    return std::visit(meaningOf, field.Value) + (isAngle ? " in degrees" : "");
}

}  // namespace

void Show(Record& record, const RecordField& field, const std::string& name) {
    const auto place = static_cast<std::size_t>(field.Key.Field);
    record.Fields.resize(std::max(record.Fields.size(), place));
    ShownField& shown = record.Fields[place - 1];
    // Of several keys of the field the last one has its value, but may be missing in the section.
    if (!name.empty()) {
        shown.Key = name;
    }
    shown.Value = ValueText(field.Value);
    if (const auto* const color = std::get_if<RGBColor>(&field.Value)) {
        shown.Color = *color;
    }
    shown.Meaning = MeaningOf(field);
}

}  // namespace HOST
