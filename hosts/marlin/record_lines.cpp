// SPDX-License-Identifier: MIT
#include "record_kinds.h"
#include <marlin/records/bias_info.h>
#include <marlin/records/dxf_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/map_info.h>
#include <marlin/records/panel_info.h>
#include <marlin/records/sun_illumination_info.h>

namespace HOST {

namespace {

// As it stands in the section, or behind the prefix.
template <class T>
T Read(const Section& section, const std::string& prefix) {
    T record;
    if (prefix.empty()) {
        record.Read(section);
    } else {
        record.Read(prefix, section);
    }
    return record;
}

}  // namespace

void DescribeLine(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    LineInfo line;
    line.Read(section);
    writer.Switch({"Enable"}, line.Enable(), "the line is drawn")
        .Number({"LineWidth"}, line.Width(), "width")
        .Color({"LineTrueColor", "LineColor"}, line.Color(), "color")
        .Text({"LineStyle"}, line.StyleStr(), "dash pattern");
}

void DescribeDxfPen(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    DXFInfo pen;
    pen.Read(section);
    writer.Number({"DXFLineWidth"}, pen.Width(), "width")
        .Color({"DXFLineTrueColor", "DXFLineColor"}, pen.Color(), "color")
        .Number({"DXFColorMode"}, pen.ColorMode(), "color mode");
}

void DescribeBias(const Section& section, const std::string& prefix, RecordWriter& writer) {
    writer.Number({"BiasMode"}, Read<BiasInfo>(section, prefix).BiasMode, "bias mode");
}

void DescribeSun(const Section& section, const std::string& prefix, RecordWriter& writer) {
    const auto sun = Read<SunIlluminationInfo>(section, prefix);
    writer.Switch({"SunIllumunationEnable"}, sun.Enable, "the surface is shaded")
        .Number({"SunIllumunationAzimuth"}, sun.Azimuth, "direction of the light in degrees")
        .Number({"SunIllumunationElevation"}, sun.Elevation, "its height in degrees")
        .Number({"SunIllumunationContrast"}, sun.Contrast, "contrast, a factor");
}

void DescribeMap(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    CMapInfo map;
    map.Read(section);
    writer.Number({"SymbolizationType"}, map.SymbolizationType(), "code of the symbols")
        .Number({"ScaleLevel"}, map.ScaleLevel(), "code of the scale")
        .Number({"DisplayType"}, map.DisplayType(), "code of the display")
        .Switch({"ShowTextGeneric"}, map.TextGeneric(), "generic texts are shown")
        .Switch({"ShowTextOther"}, map.TextOther(), "other texts are shown")
        .Switch({"ShowChartContour"}, map.ChartContour(), "the chart's contours are shown")
        .Switch({"ShowLightsInfo"}, map.LightsInfo(), "lights are described")
        .Switch({"AntiCluttering"}, map.AntiCluttering(), "crowded symbols are thinned out")
        .Switch({"ShowBoundaries"}, map.Boundaries(), "boundaries are shown");
}

void DescribePanel(const Section& section, const std::string& prefix, RecordWriter& writer) {
    const auto panel = Read<PanelInfo>(section, prefix);
    const char* const x = prefix.empty() ? "PosX" : "X";
    const char* const y = prefix.empty() ? "PosY" : "Y";
    writer.Number({x}, panel.PosX, "x on the paper")
        .Number({y}, panel.PosY, "y on the paper")
        .Number({"Width"}, panel.Width, "width on the paper")
        .Number({"Height"}, panel.Height, "height on the paper")
        .Switch({"LockPosSize"}, panel.LockPosSize, "must not be moved or resized")
        .Number({"Justification"}, panel.Justification, "code of the point at the position");
}

}  // namespace HOST
