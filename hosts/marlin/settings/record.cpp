// SPDX-License-Identifier: MIT
#include "record.h"

#include "output/printable.h"
#include <marlin/base/files/settings_grammar.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

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

bool IsNamed(const RecordKey& key, std::string_view text) {
    return std::ranges::any_of(key.Values, [text](const MARLINSUITE::NamedValue& value) {
        return MARLINSUITE::EqualIgnoringCase(value.Text, MARLINSUITE::TrimmedSettingsText(text));
    });
}

// Sums of named values are written as their names with commas between them.
bool AreNamed(const RecordKey& key, std::string_view text) {
    for (auto comma = text.find(','); key.AreBits && comma != text.npos; comma = text.find(',')) {
        if (!IsNamed(key, text.substr(0, comma))) {
            return false;
        }
        text.remove_prefix(comma + 1);
    }
    return IsNamed(key, text);
}

bool IsReadable(const RecordField& field, const std::string& text) {
    const bool hasNames = std::ranges::any_of(
        field.Key.Values, [](const MARLINSUITE::NamedValue& value) { return *value.Text != '\0'; });
    if (std::holds_alternative<std::string>(field.Value)) {
        return !hasNames || AreNamed(field.Key, text);
    }
    double number = 0.0;
    int whole = 0;
    bool flag = false;
    if (std::holds_alternative<bool>(field.Value)) {
        return MARLINSUITE::ParseNumber(text, flag);
    }
    const bool isNumber = std::holds_alternative<int>(field.Value)
                              ? MARLINSUITE::ParseNumber(text, whole)
                              : MARLINSUITE::ParseNumber(text, number);
    return isNumber || (hasNames && AreNamed(field.Key, text));
}

}  // namespace

void Show(Record& record, const RecordField& field, const SectionKey& key) {
    const auto place = static_cast<std::size_t>(field.Key.Field);
    record.Fields.resize(std::max(record.Fields.size(), place));
    ShownField& shown = record.Fields[place - 1];
    // Of several keys of the field the last one has its value, but may be missing in the section.
    if (key.IsValid()) {
        shown.Key = *key.GetName();
        if (!IsReadable(field, key.GetValue())) {
            shown.Unreadable = *key.GetName() + " = " + key.GetValue();
        }
    }
    shown.Value = ValueText(field.Value);
    if (const auto* const color = std::get_if<RGBColor>(&field.Value)) {
        shown.Color = *color;
    }
    shown.Meaning = MeaningOf(field);
}

}  // namespace HOST
