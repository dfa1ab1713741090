// SPDX-License-Identifier: MIT
#include "contour_file.h"

#include "input/level.h"
#include <marlin/base/files/file_replacement.h>
#include <marlin/base/math.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/ascii.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <utility>

namespace HOST {

namespace {

constexpr std::string_view contourStart = "Contour(";

std::string ContourName(int number) {
    std::string name(contourStart);
    MARLINSUITE::AppendNumber(name, number);
    return name + ")";
}

bool IsContourName(std::string_view name) {
    return PLATFORM::EqualIgnoringCase(name.substr(0, contourStart.size()), contourStart);
}

// The list reads a file by its path, a second time; what can be read once only is refused.
ErrorString OpenSource(const std::string& path, SettingsSource& source) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
        !std::filesystem::is_directory(status)) {
        return ErrorString(path + ": not a regular file");
    }
    return source.OpenWithSections(path);
}

ErrorString LoadList(const SettingsSource& source, ContourDefinitionList& contours) {
    const std::string& path = source.Path();
    if (!contours.Load(path.c_str())) {
        return ErrorString(path + ": no section [Contour(0)]: not a contour definition file");
    }
    const auto numContourSections = std::ranges::count_if(
        source.File().Sections(),
        [](const Section& section) { return IsContourName(*section.GetName()); });
    if (numContourSections != contours.NumContours()) {
        return ErrorString(path + ": no section [" + ContourName(contours.NumContours()) +
                           "], but others of higher numbers, which are not read");
    }
    return {};
}

// A value that the key does not hold already goes in, so that keys that say the same are left
// alone, a section's seal with them.
template <class T>
void Put(Section& section, const char* name, T value) {
    SectionKey& key = section[name];
    T stored{};
    if (!MARLINSUITE::ParseNumber(key.GetValue(), stored) || stored != value) {
        key << value;
    }
}

void PutColor(Section& section, unsigned long color) {
    unsigned long stored = 0;
    const bool isExact =
        MARLINSUITE::ParseNumber(std::as_const(section)["TrueColor"].GetValue(), stored);
    int index = -1;
    MARLINSUITE::ParseNumber(std::as_const(section)["Color"].GetValue(), index);
    const bool isSame = isExact
                            ? stored == color
                            : index >= 0 && static_cast<unsigned long>(DXFColor(index)) == color;
    if (!isSame) {
        section["Color"] << DXFColor(color).Index();
        section["TrueColor"] << color;
    }
}

int LineTypeOf(std::string_view text) {
    const auto* const end = std::end(ContourDefinitionList::LINESTYLES);
    const auto* const found = std::find_if(
        std::begin(ContourDefinitionList::LINESTYLES), end,
        [text](const std::string& name) { return PLATFORM::EqualIgnoringCase(name, text); });
    return found == end ? 0 : static_cast<int>(found - ContourDefinitionList::LINESTYLES);
}

// Keys that a section lacks take the values of the section before it when they are read; it may
// get another neighbor, so they are written. The line type alone has a value of its own.
void PutContour(Section& section, const Contour& contour) {
    Put(section, "Level", contour.Level);
    PutColor(section, contour.Color);
    if (LineTypeOf(std::as_const(section)["LineType"].GetValue()) != contour.LineType) {
        section["LineType"] << ContourDefinitionList::LINESTYLES[contour.LineType];
    }
    Put(section, "LineWidth", contour.LineWidth);
    Put(section, "Annotate", contour.Annotate);
}

// A section that is new has its keys in the order in which lists write them.
Section BlankSection() {
    Section section("Contour");
    section["Level"] << 0.0;
    section["Color"] << 0;
    section["TrueColor"] << 0UL;
    section["LineType"] << ContourDefinitionList::LINESTYLES[0];
    section["LineWidth"] << 0.0F;
    section["Annotate"] << false;
    return section;
}

// By number. The list found all of them, so the numbers have no gap.
std::vector<int> PositionsOf(const IniFile& file, int count) {
    std::vector<int> positions(static_cast<std::size_t>(count));
    for (int i = 0; i < file.NumSections(); ++i) {
        const std::string_view name = *file[i].GetName();
        unsigned int number = 0;
        if (IsContourName(name) &&
            MARLINSUITE::ParseNumber(name.substr(contourStart.size()), number)) {
            positions[number] = i;
        }
    }
    return positions;
}

}  // namespace

ErrorString ReadContours(const std::string& path, ContourDefinitionList& contours) {
    SettingsSource source;
    if (ErrorString error = OpenSource(path, source); !error.Empty()) {
        return error;
    }
    return LoadList(source, contours);
}

ErrorString ContourFile::Open(const std::string& path, bool canBeNew) {
    m_Path = path;
    std::error_code error;
    m_IsNew = canBeNew && !std::filesystem::exists(path, error) && !error;
    if (m_IsNew) {
        return {};
    }
    ContourDefinitionList contours;
    ErrorString failure = OpenSource(path, m_Source);
    if (failure.Empty()) {
        failure = m_Source.CanBeSaved();
    }
    if (failure.Empty()) {
        failure = LoadList(m_Source, contours);
    }
    return failure.Empty() ? TakeItems(contours) : failure;
}

ErrorString ContourFile::TakeItems(const ContourDefinitionList& contours) {
    m_Positions = PositionsOf(m_Source.File(), contours.NumContours());
    for (int i = 0; i < contours.NumContours(); ++i) {
        const Section& section = m_Source.File()[m_Positions[static_cast<std::size_t>(i)]];
        m_Items.push_back({StoredLevel(contours[i].Level), contours[i], section});
    }
    std::ranges::stable_sort(m_Items, {}, &Item::Level);
    const auto twice = std::ranges::adjacent_find(m_Items, {}, &Item::Level);
    if (twice != m_Items.end()) {
        return ErrorString(m_Path + ": level " + LevelText(twice->Level) + " stands twice, in [" +
                           *twice->Keys.GetName() + "] and [" + *std::next(twice)->Keys.GetName() +
                           "]");
    }
    return {};
}

std::vector<ContourFile::Item>::iterator ContourFile::LowerBound(double level) {
    return std::ranges::lower_bound(m_Items, level, {}, &Item::Level);
}

Contour* ContourFile::Find(double level) {
    const auto found = LowerBound(level);
    return found != m_Items.end() && found->Level == level ? &found->Definition : nullptr;
}

void ContourFile::Add(const Contour& contour) {
    m_Items.insert(LowerBound(contour.Level), {contour.Level, contour, BlankSection()});
}

void ContourFile::Remove(double level) {
    m_Items.erase(LowerBound(level));
}

ErrorString ContourFile::Save() {
    IniFile& file = m_Source.File();
    for (std::size_t i = 0; i < m_Items.size(); ++i) {
        const std::string name = ContourName(static_cast<int>(i));
        if (i == m_Positions.size()) {
            m_Positions.push_back(file.NumSections());
            static_cast<void>(file[name]);
        }
        Section& section = m_Items[i].Keys;
        section.SetName(name);
        PutContour(section, m_Items[i].Definition);
        file[m_Positions[i]] = std::move(section);
    }
    for (std::size_t i = m_Items.size(); i < m_Positions.size(); ++i) {
        file.RemoveSection(ContourName(static_cast<int>(i)));
    }
    return MARLINSUITE::ReplaceFile(m_Path, m_Source.Text());
}

}  // namespace HOST
