// SPDX-License-Identifier: MIT
#include <marlin/base/colors/detail/palette_reader.h>
#include <marlin/base/files/detail/line_reader.h>
#include <marlin/base/files/settings_grammar.h>
#include <marlin/base/text_functions.h>
#include <marlin/core/number_text.h>

namespace MARLINSUITE::detail {

namespace {

constexpr std::size_t longestLine = 4096;
constexpr std::string_view blanks = " \t";

std::vector<std::string_view> ItemsOf(std::string_view line) {
    std::vector<std::string_view> items;
    while (!(line = TrimmedSettingsText(line)).empty()) {
        const std::size_t end = std::min(line.find_first_of(blanks), line.size());
        items.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
    return items;
}

// After two items or more, "#" begins a comment unless it begins a color.
void DropComment(std::vector<std::string_view>& items) {
    for (std::size_t i = 2; i < items.size(); ++i) {
        if (items[i].front() == '#' && !ParseColor(items[i], PALETTE_MODEL::RGB)) {
            items.resize(i);
        }
    }
}

// The mark says which bounds of the slice a legend shows, which a table of colors does not.
void DropAnnotation(std::vector<std::string_view>& items) {
    const bool hasOne = items.size() == 5 || items.size() == 9;
    if (hasOne && (items.back() == "L" || items.back() == "U" || items.back() == "B")) {
        items.pop_back();
    }
}

// An item for a message: short and printable.
std::string Quoted(std::string_view item) {
    constexpr std::size_t most = 40;
    std::string text = "\"";
    for (const char c : item.substr(0, most)) {
        text += c >= ' ' && c <= '~' ? c : '?';
    }
    return text += item.size() > most ? "...\"" : "\"";
}

}  // namespace

// Comments may say anywhere how the slices are meant, so they are read first.
bool PaletteReader::Read(std::string_view text) {
    m_Palette = {};
    const bool read = ForEachLine(text,
                                  [this](std::string_view line) {
                                      return line.front() != '#' || TakeComment(line.substr(1));
                                  }) &&
                      ForEachLine(text, [this](std::string_view line) {
                          return line.front() == '#' || TakeEntry(line);
                      });
    if (!read || !m_Palette.Slices.empty()) {
        return read;
    }
    m_Line = std::max(m_Line, 1);
    return Fail("the palette has no slices");
}

template <class Take>
bool PaletteReader::ForEachLine(std::string_view text, Take take) {
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    detail::LineReader lines(text);
    m_Line = 0;
    std::string_view line;
    while (lines.Next(line)) {
        ++m_Line;
        line = line.substr(0, line.find('\n'));
        if (line.size() > longestLine) {
            return Fail("the line is longer than 4096 characters");
        }
        if (line.find('\0') != std::string_view::npos) {
            return Fail("not a text file");
        }
        line = TrimmedSettingsText(line);
        if (!line.empty() && !take(line)) {
            return false;
        }
    }
    return true;
}

bool PaletteReader::TakeComment(std::string_view line) {
    line = TrimmedSettingsText(line);
    const std::size_t end = std::min(line.find_first_of(" \t="), line.size());
    const std::string_view word = line.substr(0, end);
    std::string_view value = TrimmedSettingsText(line.substr(end));
    const bool isSetting = value.starts_with('=');
    value = isSetting ? TrimmedSettingsText(value.substr(1)) : value;
    if (word == "CYCLIC" && (isSetting || value.empty())) {
        return Fail("cyclic palettes are not read");
    }
    if (word == "HARD_HINGE" || word == "SOFT_HINGE") {
        return value.empty() ? TakeHinge("0") : !isSetting || TakeHinge(value);
    }
    if (isSetting && word == "HINGE") {
        return TakeHinge(value);
    }
    if (isSetting && word == "COLOR_MODEL") {
        return TakeModel(value);
    }
    return !isSetting || word != "RANGE" || TakeRange(value);
}

bool PaletteReader::TakeModel(std::string_view name) {
    const std::string_view plain = name.substr(name.starts_with('+') ? 1 : 0);
    if (icompare(plain, "HSV")) {
        m_Palette.Model = PALETTE_MODEL::HSV;
    } else if (icompare(plain, "RGB")) {
        m_Palette.Model = PALETTE_MODEL::RGB;
    } else {
        return Fail("the color model " + Quoted(name) + " is not read");
    }
    return true;
}

bool PaletteReader::TakeRange(std::string_view bounds) {
    const std::size_t slash = std::min(bounds.find('/'), bounds.size());
    std::pair<double, double> range;
    if (slash == bounds.size() || !ParseWhole(bounds.substr(0, slash), range.first) ||
        !ParseWhole(bounds.substr(slash + 1), range.second) || range.first >= range.second) {
        return Fail("the range " + Quoted(bounds) + " is not low/high");
    }
    m_Palette.Range = range;
    m_Palette.RangeLine = m_Line;
    return true;
}

bool PaletteReader::TakeHinge(std::string_view position) {
    double hinge = 0.0;
    if (!ParseWhole(position, hinge)) {
        return Fail("the hinge " + Quoted(position) + " is not a number");
    }
    m_Palette.Hinge = hinge;
    return true;
}

bool PaletteReader::TakeEntry(std::string_view line) {
    std::vector<std::string_view> items = ItemsOf(line.substr(0, line.find(';')));
    if (items.empty()) {
        return true;
    }
    DropComment(items);
    if (items[0] == "B" || items[0] == "F" || items[0] == "N") {
        return TakeOuterColor(items[0].front(), Items(items).subspan(1));
    }
    DropAnnotation(items);
    return TakeSlice(items);
}

bool PaletteReader::TakeOuterColor(char which, Items items) {
    if (items.size() != 1 && items.size() != 3) {
        return Fail("B, F and N take one color");
    }
    PaletteColor color{};
    const bool isAbsent = items.size() == 1 && items[0] == "-";
    if (!isAbsent && !TakeColor(items, color)) {
        return false;
    }
    const auto given = isAbsent ? std::nullopt : std::optional(color);
    if (which == 'B') {
        m_Palette.Background = given;
    } else if (which == 'F') {
        m_Palette.Foreground = given;
    }
    return true;
}

bool PaletteReader::TakeSlice(Items items) {
    if (items.size() == 2) {
        return Fail("categorical palettes are not read");
    }
    if (items.size() != 4 && items.size() != 8) {
        return Fail("a slice is two times a value and a color");
    }
    PaletteSlice slice;
    const std::size_t half = items.size() / 2;
    if (!TakeBound(items[0], slice.Low) || !TakeBound(items[half], slice.High) ||
        !TakeColor(items.subspan(1, half - 1), slice.LowColor) ||
        !TakeColor(items.subspan(half + 1), slice.HighColor)) {
        return false;
    }
    if (slice.Low >= slice.High) {
        return Fail("the slice's values do not ascend");
    }
    if (!m_Palette.Slices.empty() && slice.Low < m_Palette.Slices.back().High) {
        return Fail("the slice begins below the end of the one before it");
    }
    m_Palette.Slices.push_back(slice);
    return true;
}

bool PaletteReader::TakeColor(Items items, PaletteColor& color) {
    const auto read = items.size() == 1 ? ParseColor(items[0], m_Palette.Model)
                                        : ParseColorColumns(items.first<3>(), m_Palette.Model);
    if (!read) {
        const auto length = items.back().data() + items.back().size() - items[0].data();
        const std::string_view text(items[0].data(), static_cast<std::size_t>(length));
        return Fail(Quoted(text) + " is not a color");
    }
    color = *read;
    return true;
}

bool PaletteReader::TakeBound(std::string_view item, double& bound) {
    return ParseWhole(item, bound) || Fail(Quoted(item) + " is not a number");
}

bool PaletteReader::Fail(std::string cause) {
    m_Cause = std::move(cause);
    return false;
}

}  // namespace MARLINSUITE::detail
