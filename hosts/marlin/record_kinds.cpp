// SPDX-License-Identifier: MIT
#include "record_kinds.h"

#include <marlin/core/ascii.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace HOST {

namespace {

using Names = std::vector<const char*>;

const Names sunKeys = {"SunIllumunationEnable", "SunIllumunationAzimuth",
                       "SunIllumunationElevation", "SunIllumunationContrast"};

auto NumOf(const Section& section, const std::string& start, const Names& names) {
    return std::ranges::count_if(names,
                                 [&](const char* name) { return section.HasKey(start + name); });
}

// The keys of one prefix, in their order.
struct Prefixed {
    std::string Prefix;
    Section Keys{""};
};

std::vector<Prefixed> PrefixesOf(const Section& section) {
    std::vector<Prefixed> prefixes;
    std::unordered_map<std::string, std::size_t> places;
    for (const SectionKey& key : section.Keys()) {
        const std::string& name = key.GetName();
        const auto dot = name.rfind('.');
        if (dot == std::string::npos || dot == 0) {
            continue;
        }
        std::string lower = name.substr(0, dot);
        std::ranges::transform(lower, lower.begin(), PLATFORM::ToLower);
        const auto [place, isNew] = places.try_emplace(std::move(lower), prefixes.size());
        if (isNew) {
            prefixes.push_back({name.substr(0, dot)});
        }
        prefixes[place->second].Keys.AddKey(key);
    }
    return prefixes;
}

void AddRecords(const Section& section, bool hasPrefix, const std::string& prefix,
                std::vector<Record>& records) {
    const std::string start = hasPrefix ? prefix + "." : "";
    for (const RecordKind& kind : RecordKinds()) {
        if (kind.HasPrefix == hasPrefix && kind.IsIn(section, start)) {
            records.push_back({kind.Name, prefix, {}});
            RecordWriter writer(records.back(), section, start);
            kind.Describe(section, prefix, writer);
        }
    }
}

const std::vector<RecordKind> kinds = {
    {"line",
     false,
     2,
     {"LineColor", "LineStyle", "LineTrueColor"},
     {"LineWidth", "Enable"},
     DescribeLine},
    {"DXF pen",
     false,
     1,
     {"DXFLineColor", "DXFLineTrueColor", "DXFLineWidth", "DXFColorMode"},
     {},
     DescribeDxfPen},
    {"bias", false, 1, {"BiasMode"}, {}, DescribeBias},
    {"bias", true, 1, {"BiasMode"}, {}, DescribeBias},
    {"sun illumination", false, 1, sunKeys, {}, DescribeSun},
    {"sun illumination", true, 1, sunKeys, {}, DescribeSun},
    {"map",
     false,
     1,
     {"SymbolizationType", "ScaleLevel", "DisplayType", "ShowTextGeneric", "ShowTextOther",
      "ShowChartContour", "ShowLightsInfo", "AntiCluttering", "ShowBoundaries"},
     {},
     DescribeMap},
    {"grid",
     false,
     2,
     {"XInterval", "YInterval", "TickSize", "MinorTickSize", "EastingMark", "NorthingMark"},
     {"GridStyle"},
     DescribeGrid},
    {"geographic grid",
     false,
     1,
     {"LonInterval", "LatInterval", "LatLonStyle", "LatLonDecimals", "TrailingHemisphereIndicator",
      "DegMinSecSymbols"},
     {},
     DescribeGeoGrid},
    {"paper grid",
     false,
     2,
     {"XStep", "YStep", "SnapOn", "OringinX", "OringinY"},
     {"Visible"},
     DescribePaperGrid},
    {"panel",
     false,
     2,
     {"PosX", "PosY", "LockPosSize", "Justification"},
     {"Width", "Height"},
     DescribePanel},
    {"panel",
     true,
     2,
     {"X", "Y", "LockPosSize", "Justification"},
     {"Width", "Height"},
     DescribePanel},
    {"contour settings",
     false,
     1,
     {"SmoothingWindow", "ContourLabelSpacing", "SuppressionLength", "SmoothingPasses",
      "EnableContouring", "LabelOrientation"},
     {},
     DescribeContours},
    {"contour definition",
     false,
     2,
     {"Level"},
     {"Color", "TrueColor", "LineType", "LineWidth", "Annotate"},
     DescribeContour},
};

}  // namespace

const std::vector<RecordKind>& RecordKinds() {
    return kinds;
}

bool RecordKind::IsIn(const Section& section, const std::string& start) const {
    const auto numOwn = NumOf(section, start, Own);
    return numOwn > 0 && numOwn + NumOf(section, start, Other) >= Needed;
}

std::vector<Record> RecordsOf(const Section& section) {
    std::vector<Record> records;
    AddRecords(section, false, "", records);
    for (const Prefixed& prefixed : PrefixesOf(section)) {
        AddRecords(prefixed.Keys, true, prefixed.Prefix, records);
    }
    AddRecordsInValues(section, records);
    return records;
}

}  // namespace HOST
