// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/dxf_color.h>
#include <marlin/color/rgb_color.h>
#include <marlin/core/export.h>

#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Descriptions of the settings records: each lists its keys once, and reads, writes and describes
/// itself by that list.
namespace MARLINSUITE {

/// One of the values that a key has names for.
struct NamedValue {
    int Value;            ///< The number of an enumeration or the bit, or 0 or 1 of a flag.
    const char* Text;     ///< As the key holds it; empty for a plain number.
    const char* Meaning;  ///< For people, a few words in small letters.
};

/// The value that has the text, ignoring case, or else `otherwise`.
[[nodiscard]] MARLIN_API int ValueOfText(std::span<const NamedValue> values, std::string_view text,
                                         int otherwise) noexcept;

/// A key of a record in a section, or an item of a record's one-line text, which has no name.
/// All pointers are to constant data.
struct MARLIN_API RecordKey {
    /// The unit of angles.
    static constexpr const char* Degrees = "degrees";
    /// The unit of lengths on a plot's paper.
    static constexpr const char* Paper = "paper units";

    /// The unit of lengths in a plot.
    static constexpr const char* Plot = "plot units";

    const char* Name = "";  ///< In a section without a prefix, letter for letter.
    /// The place of its field among the fields of the record as people read them, from 1. Of
    /// several keys with one field the last one that is readable counts.
    int Field = 0;
    const char* Meaning = "";                 ///< For people, without the unit.
    const char* Unit = "";                    ///< For people; empty for a value without one.
    std::span<const NamedValue> Values = {};  ///< Empty where every value means itself.
    bool AreBits = false;                     ///< Whether values are sums of the named ones.
    bool IsCommon = false;          ///< Whether other records have a key of that name as well.
    bool IsOlder = false;           ///< Whether it is only read, in the files of older programs.
    const char* PrefixedName = "";  ///< The name after a prefix, where it is another one.
    const char* Comments = "";      ///< The comments that it is written with.

    /// The key's name in a section. The start is empty, or a prefix with its ".".
    [[nodiscard]] std::string NameIn(const std::string& start) const;
    /// The meaning of a value: that of the named value, or of the bits with commas between them,
    /// or else that of the key.
    [[nodiscard]] std::string MeaningOf(double value) const;
};

/// The value of a field: a flag, a number, a text, a color word or an index into the palette.
using RecordValue = std::variant<bool, int, float, double, std::string, RGBColor, DXFColor>;

/// A key with the value that a record has for it.
struct RecordField {
    RecordKey Key;      ///< The key, the same for every record of a class.
    RecordValue Value;  ///< What the record has.
    std::string Text;   ///< The value as the record writes it.
};

/// The keys in the order in which the record writes them.
using RecordFields = std::vector<RecordField>;

}  // namespace MARLINSUITE
