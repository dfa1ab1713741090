// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/rgb_color.h>
#include <marlin/settings/section.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace HOST {

/// One field of a record, for the eye.
struct RecordField {
    std::string Key;    ///< The key that it was read from; empty for one that has its default.
    std::string Value;  ///< A text of the file.
    std::optional<RGBColor> Color;  ///< In the place of the value.
    std::string Meaning;
};

/// A record that a section holds.
struct Record {
    std::string Kind;
    std::string Name;  ///< The prefix or the key that it stands under; empty for whole sections.
    std::vector<RecordField> Fields;
};

/// Adds the fields of a record one by one. The names of keys are without the prefix, most
/// decisive first.
class RecordWriter {
public:
    using Names = std::initializer_list<const char*>;

    RecordWriter(Record& record, const Section& keys, std::string start)
        : m_Record(record), m_Keys(keys), m_Start(std::move(start)) {}

    RecordWriter& Text(Names keys, std::string value, std::string meaning);
    RecordWriter& Number(Names keys, double value, std::string meaning);
    RecordWriter& Number(Names keys, float value, std::string meaning);
    RecordWriter& Number(Names keys, int value, std::string meaning);
    /// Shown as "yes" or "no".
    RecordWriter& Switch(Names keys, bool value, std::string meaning);
    /// The meaning tells the index into the DXF palette.
    RecordWriter& Color(Names keys, unsigned long word, const std::string& of);

private:
    [[nodiscard]] std::string Source(Names keys) const;

    Record& m_Record;
    const Section& m_Keys;
    std::string m_Start;
};

/// The records that a section holds, by its keys: those without a prefix, those of each prefix in
/// the order of the file, and those that stand in a value.
[[nodiscard]] std::vector<Record> RecordsOf(const Section& section);

/// The records that are written as one value: text styles, depth labels, and lines.
void AddRecordsInValues(const Section& section, std::vector<Record>& records);

}  // namespace HOST
