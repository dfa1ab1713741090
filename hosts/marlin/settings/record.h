// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>
#include <marlin/records/record_field.h>

#include <optional>
#include <string>
#include <vector>

namespace HOST {

/// One field of a record as people read it.
struct ShownField {
    std::string Key;  ///< The key that it was read from; empty for a field that has its default.
    std::string Value;
    std::optional<RGBColor> Color;  ///< In the place of the value.
    std::string Meaning;
};

/// A record that a section holds.
struct Record {
    std::string Kind;
    /// The prefix or the key that holds the record; empty for the whole section.
    std::string Name;
    std::vector<ShownField> Fields;
};

/// Shows what a record has under one key. The name is that of the key in the section, empty when
/// the section lacks it.
void Show(Record& record, const MARLINSUITE::RecordField& field, const std::string& name);

}  // namespace HOST
