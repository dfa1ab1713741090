// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/format_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/core/number_text.h>
#include <marlin/geometry/angle.h>
#include <marlin/records/detail/palette_index.h>
#include <marlin/records/record_field.h>

#include <algorithm>
#include <concepts>
#include <string>

/// The one-line texts of text styles and depth labels. A record hands each of its items with the
/// field for it to a reader or to a lister, so that reading and writing follow a single list.
namespace MARLINSUITE::detail {

/// A field of an enumeration from 0 to `Last`, which other numbers leave.
template <class Enumeration>
struct Choice {
    Enumeration& Field;
    Enumeration Last;

    Choice(Enumeration& field, Enumeration last) : Field(field), Last(last) {}

    void Set(int value) {
        if (value >= 0 && value <= Last) {
            Field = static_cast<Enumeration>(value);
        }
    }
    [[nodiscard]] int Index() const { return Field; }
};

/// Items that are no number count as 0.
template <class Field>
void ReadItem(const std::string& item, Field& field) {
    if constexpr (std::same_as<Field, std::string>) {
        field = item;
    } else if constexpr (std::same_as<Field, unsigned long>) {
        // Color words come as signed numbers, too.
        field = ParseNumber(item, field) ? field : static_cast<unsigned int>(atoi(item));
    } else if constexpr (std::same_as<Field, float>) {
        field = static_cast<float>(atof(item));
    } else if constexpr (std::same_as<Field, Angle>) {
        field = Angle(atof(item));
    } else if constexpr (std::same_as<Field, bool>) {
        field = atoi(item) != 0;
    } else if constexpr (std::same_as<Field, int>) {
        field = atoi(item);
    } else {
        field.Set(atoi(item));
    }
}

/// Decimal numbers have six significant digits.
template <class Field>
std::string ItemText(const Field& field) {
    std::string text;
    if constexpr (std::same_as<Field, std::string>) {
        text = field;
    } else if constexpr (std::same_as<Field, float>) {
        AppendGeneral(text, static_cast<double>(field));
    } else if constexpr (std::same_as<Field, Angle>) {
        AppendGeneral(text, field.Get());
    } else if constexpr (std::integral<Field>) {
        AppendNumber(text, field);
    } else {
        AppendNumber(text, field.Index());
    }
    return text;
}

/// Reads the items from `first` up to, but not including, `end`, or as far as the list goes.
class StyleReader {
public:
    StyleReader(const FormatString& items, int first, int end) noexcept
        : m_Items(items), m_Next(first), m_End(std::min(end, items.Size())) {}

    template <class Field>
    void operator()(const RecordKey& /*key*/, Field&& field) {
        if (m_Next < m_End) {
            ReadItem(m_Items[m_Next++], field);
        }
    }

private:
    const FormatString& m_Items;
    int m_Next;
    int m_End;
};

class StyleLister {
public:
    explicit StyleLister(RecordFields& fields) : m_Fields(fields) {}

    template <class Field>
    void operator()(const RecordKey& key, const Field& field) {
        m_Fields.push_back({key, Value(key, field), ItemText(field)});
    }

private:
    template <class Field>
    static RecordValue Value(const RecordKey& key, const Field& field) {
        if constexpr (std::same_as<Field, Angle>) {
            return field.Get();
        } else if constexpr (std::same_as<Field, unsigned long>) {
            return RGBColor(field);
        } else if constexpr (std::same_as<Field, PaletteIndex>) {
            return field.Value();
        } else if constexpr (requires { field.Index(); }) {
            return key.Values.empty() ? RecordValue(field.Index())
                                      : RecordValue(key.MeaningOf(field.Index()));
        } else {
            return field;
        }
    }

    RecordFields& m_Fields;
};

/// The items with commas between them.
inline std::string JoinItems(const RecordFields& fields) {
    FormatString items(',');
    for (const RecordField& field : fields) {
        items += field.Text;
    }
    return items.String();
}

}  // namespace MARLINSUITE::detail
