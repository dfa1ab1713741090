// SPDX-License-Identifier: MIT
// Prints docs/formats/records.md, made of what the records say about themselves.
#include <marlin/contours/record_kinds.h>
#include <marlin/core/ascii.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/records/text_info.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

using MARLINSUITE::NamedValue;
using MARLINSUITE::RecordField;
using MARLINSUITE::RecordFields;
using MARLINSUITE::RecordKind;

constexpr const char* Introduction =
    R"(# Records in settings files

Each record keeps itself as keys of a section of a [settings file](settings.md), in the order of
its table here. The tables are made of the lists by which the records read and write: the test
`records.page` fails while this page differs from them, and prints how to make it anew. A default
is what a record writes that nobody changed.

- A key that is missing, or unreadable as a value of its type, leaves the field as it was. These
  reset it: a palette index makes the color black, one of several texts becomes the first of
  them, words become none, a mark becomes empty, the justification of a panel becomes 0. A list of
  contours reads an incomplete definition by [rules of its own](contour_definitions.md).
- A color word is red + 256 green + 65536 blue. The index into the DXF palette beside it is for
  programs that know no other colors; outside 0 to 255 it means black. Where two keys have one
  field, the meaning says which one wins.
- Positions of panels are read in single precision.
- With a prefix, the keys of some records have names that begin with the prefix and a ".".
- Lines, pens, maps and the three grids append their keys, whether or not the section has keys of
  those names; the other records write theirs in the place of those. Readers take the first key
  of a name.
- Codes have the meaning that the host gives them.
- `SunIllumunationEnable` and its like, `OringinX` and `OringinY` are spelt as in the files that
  are in use, and so is the comment "A value of 0 disables suppresion". Other spellings are other
  keys, which nothing reads.
)";

constexpr const char* ValuesIntroduction =
    R"(
# Records in one value

Text styles and depth labels are written as one text, its items between commas, and so are lines
(width, palette index, dash pattern, color word, drawn or not) and DXF pens (width, palette index,
color mode, color word). Items that are missing leave the defaults, and so do codes out of range.
)";

std::string TypeOf(const RecordField& field) {
    static constexpr const char* types[] = {
        "flag, `1` or `0`", "integer", "decimal number, single precision",
        "decimal number",   "text",    "color word",
        "palette index"};
    const auto& values = field.Key.Values;
    if (std::ranges::any_of(values, [](const NamedValue& named) { return *named.Text != '\0'; })) {
        return field.Key.AreBits ? "words, commas between them" : "one of the texts";
    }
    const bool isNamedItem = *field.Key.Name == '\0' && !values.empty();
    return isNamedItem ? "integer" : types[field.Value.index()];
}

std::string Code(const std::string& text) {
    return text.empty() ? "" : "`" + text + "`";
}

std::string ValuesOf(const RecordField& field) {
    std::string text;
    for (const NamedValue& named : field.Key.Values) {
        const bool hasText = *named.Text != '\0';
        if (hasText || !field.Key.AreBits || named.Value != 0) {
            text += (text.empty() ? ": " : ", ") +
                    Code(hasText ? named.Text : std::to_string(named.Value)) + " " + named.Meaning;
        }
    }
    return text.empty() || !field.Key.AreBits ? text : text + ", or several of these";
}

// The last of the keys with the same field.
std::size_t WinnerOf(const RecordField& field, const RecordFields& fields) {
    std::size_t winner = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        winner = fields[i].Key.Field == field.Key.Field ? i : winner;
    }
    return winner;
}

std::string MeaningOf(const RecordField& field, const RecordFields& fields) {
    std::string text = field.Key.Meaning + ValuesOf(field);
    const std::size_t winner = WinnerOf(field, fields);
    if (&fields[winner] != &field) {
        const std::string name = fields[winner].Key.Name;
        text += "; " + (name.empty() ? "item " + std::to_string(winner) : Code(name)) + " wins";
    }
    if (field.Key.IsOlder) {
        text += "; read, but no longer written";
    }
    if (*field.Key.PrefixedName != '\0') {
        text += "; `." + std::string(field.Key.PrefixedName) + "` with a prefix";
    }
    return text;
}

std::string Row(const std::string& name, const RecordField& field, const RecordFields& fields) {
    return "| " + name + " | " + TypeOf(field) + " | " + field.Key.Unit + " | " +
           (field.Key.IsOlder ? "" : Code(field.Text)) + " | " + MeaningOf(field, fields) + " |\n";
}

std::string Table(const char* title, const RecordFields& fields, std::size_t first = 0) {
    std::string table = "\n| " + std::string(title) + " | Type | Unit | Default | Meaning |\n" +
                        "|---|---|---|---|---|\n";
    for (std::size_t i = first; i < fields.size(); ++i) {
        const std::string name = fields[i].Key.Name;
        table += Row(name.empty() ? std::to_string(i) : Code(name), fields[i], fields);
    }
    return table;
}

std::string Heading(const std::string& name, const std::string& className) {
    std::string heading = "\n## " + name + ": " + Code(className) + "\n";
    constexpr std::size_t first = 4;
    heading[first] = MARLINSUITE::ToUpper(heading[first]);
    return heading;
}

}  // namespace

int main() {
    std::string page = Introduction;
    for (const RecordKind& kind : MARLINSUITE::RecordKinds()) {
        page += Heading(kind.Name, kind.Class);
        page += kind.TakesPrefix ? "\nWith or without a prefix.\n" : "";
        page += Table("Key", kind.Defaults());
    }
    page += ValuesIntroduction;
    page += Heading("text style", "TextInfo") + Table("Item", TextInfo().Fields());
    page += Heading("depth label", "DepthLabelInfo");
    page +=
        "\nThe items of a text style, then its own. The older layout of 14 items has no item 9 and"
        "\nneither of the last two.\n";
    page += Table("Item", DepthLabelInfo().Fields(), TextInfo().Fields().size());
    return std::fputs(page.c_str(), stdout) < 0 ? 1 : 0;
}
