// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <span>
#include <string>

class Section;

namespace MARLINSUITE {

/// A kind of record that settings sections hold key by key. The kinds are constant data.
///
/// @code
/// Section section("Border");
/// section["LineColor"] << 1;
/// const MARLINSUITE::RecordKind& line = MARLINSUITE::RecordKinds()[0];
/// const MARLINSUITE::RecordFields fields = line.Read(section, "");
/// assert(fields[0].Key.Name == std::string("LineColor") && fields[0].Text == "10");
/// @endcode
struct RecordKind {
    const char* Name;   ///< For people.
    const char* Class;  ///< The class that reads and writes it.
    int NumNeeded;      ///< How many keys, common ones counted, show that a section holds one.
    bool TakesPrefix;   ///< Whether the keys may have a prefix and a "." before their names.
    /// Makes a record, reads it from a section and returns its fields. Without a prefix the text
    /// is empty.
    RecordFields (*Read)(const Section& section, const std::string& prefix);
};

/// All kinds, those of contours included.
[[nodiscard]] MARLIN_API std::span<const RecordKind> RecordKinds() noexcept;

}  // namespace MARLINSUITE
