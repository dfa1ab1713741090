// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>
#include <marlin/records/record_field.h>
#include <marlin/settings/section_key.h>

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
    std::string Unreadable;  ///< What the key has instead of a value that the record takes.
};

/// A record that a section holds.
struct Record {
    std::string Kind;
    /// The prefix or the key that holds the record; empty for the whole section.
    std::string Name;
    std::vector<ShownField> Fields;
};

/// Shows what a record has under one key. The key is that of the section, not valid when the
/// section lacks it.
void Show(Record& record, const MARLINSUITE::RecordField& field, const SectionKey& key);

}  // namespace HOST
