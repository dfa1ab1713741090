// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/records/record_field.h>
#include <marlin/settings/section.h>

#include <string>
#include <type_traits>
#include <utility>

/// Visitors of the keys of a record. A record hands each of its keys with the field for it
/// to one of these classes, so that reading, writing and describing follow a single list.
///
/// Writing and describing walk over a copy of the record, since the list hands out fields that a
/// reader may change.
///
/// A field is a value that a settings key takes by itself, or an object that says how its value
/// is kept: with `Read(const SectionKey&)`, `Write(SectionKey&) const` and `Value() const`.
namespace MARLINSUITE::detail {

/// A key whose name other records have as well.
constexpr RecordKey Common(RecordKey key) {
    key.IsCommon = true;
    return key;
}

template <class Field>
concept PlainField = SettingsValue<std::remove_cvref_t<Field>>;

template <class Field>
void WriteField(SectionKey& key, const Field& field) {
    if constexpr (PlainField<Field>) {
        key << field;
    } else {
        field.Write(key);
    }
}

/// A field of type `unsigned long` is a color word.
template <class Field>
RecordValue ValueOf(const Field& field) {
    if constexpr (std::same_as<Field, unsigned long>) {
        return RGBColor(field);
    } else if constexpr (PlainField<Field>) {
        return field;
    } else {
        return field.Value();
    }
}

class KeyReader {
public:
    /// The start is empty, or a prefix with its ".". The section must outlive the reader.
    explicit KeyReader(const Section& section, std::string start = "")
        : m_Section(section), m_Start(std::move(start)) {}

    template <class Field>
    void operator()(const RecordKey& key, Field&& field) const {
        const SectionKey& stored = m_Section[key.NameIn(m_Start)];
        if constexpr (PlainField<Field>) {
            stored >> field;
        } else {
            field.Read(stored);
        }
    }

private:
    const Section& m_Section;
    std::string m_Start;
};

/// Appends each key, whether or not the section has one of that name. For records with a section of
/// their own: a host that writes one again empties the section first.
class KeyAppender {
public:
    explicit KeyAppender(Section& section) : m_Section(section) {}

    template <class Field>
    void operator()(const RecordKey& key, const Field& field) const {
        SectionKey written(key.Name);
        WriteField(written, field);
        m_Section.AddKey(std::move(written));
    }

private:
    Section& m_Section;
};

/// Writes each key in the place of the first one of that name, or at the end. For records that
/// share a section with others.
class KeyReplacer {
public:
    explicit KeyReplacer(Section& section, std::string start = "")
        : m_Section(section), m_Start(std::move(start)) {}

    template <class Field>
    void operator()(const RecordKey& key, const Field& field) const {
        if (key.IsOlder) {
            return;
        }
        SectionKey& written = m_Section[key.NameIn(m_Start)];
        WriteField(written, field);
        // Comments that the user gave to other keys stay.
        if (*key.Comments != '\0') {
            written.SetComments(key.Comments);
        }
    }

private:
    Section& m_Section;
    std::string m_Start;
};

class KeyLister {
public:
    explicit KeyLister(RecordFields& fields) : m_Fields(fields) {}

    template <class Field>
    void operator()(const RecordKey& key, const Field& field) const {
        SectionKey written(key.Name);
        WriteField(written, field);
        m_Fields.push_back({key, ValueOf(field), written.GetValue()});
    }

private:
    RecordFields& m_Fields;
};

}  // namespace MARLINSUITE::detail
