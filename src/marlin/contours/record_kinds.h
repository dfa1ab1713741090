// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <span>
#include <string>

class Section;

namespace MARLINSUITE {

/// A kind of record that settings sections hold key by key, for programs that work on records
/// without knowing their classes. The kinds are constant data.
///
/// @code
/// Section section("Border");
/// section["LineWidth"] << 0.5F;
/// for (const MARLINSUITE::RecordKind& kind : MARLINSUITE::RecordKinds())
///     for (const MARLINSUITE::RecordField& field : kind.Read(section, ""))
///         if (section.HasKey(field.Key.Name))
///             std::printf("%s: %s = %s\n", kind.Name, field.Key.Name, field.Text.c_str());
/// @endcode
struct RecordKind {
    const char* Name;   ///< For people.
    const char* Class;  ///< The class that reads and writes it.
    int NumNeeded;      ///< How many keys, common ones counted, show that a section holds one.
    bool TakesPrefix;   ///< Whether the keys may have a prefix and a "." before their names.
    /// The fields of a record that nobody changed.
    RecordFields (*Defaults)();
    /// The fields of such a record once it has read a section; the prefix is empty for none.
    RecordFields (*Read)(const Section& section, const std::string& prefix);
};

/// All kinds, those of contours included.
[[nodiscard]] MARLIN_API std::span<const RecordKind> RecordKinds() noexcept;

}  // namespace MARLINSUITE
