// SPDX-License-Identifier: MIT
#include "record_kinds.h"
#include <marlin/base/text_functions.h>
#include <marlin/color/dxf_color.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/contour_info.h>
#include <marlin/records/geo_grid_info.h>
#include <marlin/records/grid_info.h>
#include <marlin/records/paper_grid.h>

#include <algorithm>

namespace HOST {

namespace {

std::string GridParts(int style) {
    constexpr const char* parts[] = {"points",        "x lines",           "y lines",
                                     "x ticks",       "y ticks",           "x minor ticks",
                                     "y minor ticks", "long tick at north"};
    std::string text;
    for (unsigned int i = 0; i < std::size(parts); ++i) {
        if ((static_cast<unsigned int>(style) >> i & 1U) != 0) {
            text += (text.empty() ? "" : ", ") + std::string(parts[i]);
        }
    }
    return text.empty() ? "nothing is drawn" : text;
}

const char* OrientationText(ContourInfo::label_orientation orientation) {
    switch (orientation) {
        case ContourInfo::LowToHigh:
            return "labels face from low to high";
        case ContourInfo::HighToLow:
            return "labels face from high to low";
        default:
            return "labels at the optimum angle";
    }
}

// Continuous for a text that is no line type, as for those who read the definitions.
const std::string& LineTypeOf(const std::string& text) {
    const auto& types = ContourDefinitionList::LINESTYLES;
    const auto* const found = std::ranges::find_if(
        types, [&text](const std::string& type) { return icompare(text, type); });
    return found == std::end(types) ? types[0] : *found;
}

}  // namespace

void DescribeGrid(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    GridInfo grid;
    grid.Read(section);
    writer.Number({"XInterval"}, grid.XInterval, "distance of the lines in x")
        .Number({"YInterval"}, grid.YInterval, "distance of the lines in y")
        .Number({"GridStyle"}, grid.Style, GridParts(grid.Style))
        .Number({"TickSize"}, grid.TickSize, "length of the ticks")
        .Number({"MinorTickSize"}, grid.MinorTickSize, "length of the minor ticks")
        .Text({"EastingMark"}, grid.EastingMark, "text beside the eastings")
        .Text({"NorthingMark"}, grid.NorthingMark, "text beside the northings");
}

void DescribeGeoGrid(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    GeoGridInfo grid;
    grid.Read(section);
    const bool isTrailing = grid.TrailingHemisphereIndicator();
    writer.Number({"LonInterval"}, grid.LonInterval(), "distance of the meridians in degrees")
        .Number({"LatInterval"}, grid.LatInterval(), "distance of the parallels in degrees")
        .Number({"LatLonStyle"}, grid.LatLonStyle(), "style code of the labels")
        .Number({"LatLonDecimals"}, grid.LatLonDecimals(), "decimals of the labels")
        .Switch({"TrailingHemisphereIndicator"}, isTrailing,
                isTrailing ? "the hemisphere's letter follows" : "the hemisphere's letter leads")
        .Switch({"DegMinSecSymbols"}, grid.DegMinSecSymbols(), "symbols of degrees and minutes")
        .Number({"GridStyle"}, grid.GridStyle(), "style code of the lines")
        .Color({"GridTrueColor", "GridColor"}, grid.GridColor(), "color");
}

void DescribePaperGrid(const Section& section, const std::string& /*prefix*/,
                       RecordWriter& writer) {
    PaperGrid grid;
    static_cast<void>(grid.Read(section));  // always a success
    float x = 0.0F;
    float y = 0.0F;
    section["OringinX"] >> x;
    section["OringinY"] >> y;
    writer.Number({"XStep"}, grid.XStep(), "distance of the points in x")
        .Number({"YStep"}, grid.YStep(), "distance of the points in y")
        .Number({"OringinX"}, x, "x of one of the points")
        .Number({"OringinY"}, y, "y of one of the points")
        .Switch({"Visible"}, grid.Visible(), "shown")
        .Switch({"SnapOn"}, grid.SnapOn(), "positions snap to the points");
}

void DescribeContours(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    ContourInfo contours;
    contours.Read(section);
    const double length = contours.GetSuppressionLength();
    const auto orientation = contours.GetLabelOrientation();
    writer.Switch({"EnableContouring"}, contours.GetEnableContouring(), "contours are drawn")
        .Number({"ContourLabelSpacing", "LabelSpacing"}, contours.GetLabelSpacing(),
                "distance of the labels along a contour")
        .Number({"SuppressionLength"}, length,
                length == 0.0 ? "no contour is suppressed" : "shorter contours are suppressed")
        .Number({"SmoothingWindow"}, contours.GetSmoothingWindow(), "smoothing window, 0 to 8")
        .Number({"SmoothingPasses"}, contours.GetSmoothingPasses(), "smoothing passes")
        .Number({"LabelOrientation"}, static_cast<int>(orientation), OrientationText(orientation));
}

void DescribeContour(const Section& section, const std::string& /*prefix*/, RecordWriter& writer) {
    ContourDefinitionList::ContourDefInfo contour;
    int index = 0;
    section["Level"] >> contour.Level;
    section["Color"] >> index;
    contour.Color = static_cast<unsigned long>(DXFColor(index));
    section["TrueColor"] >> contour.Color;
    section["LineWidth"] >> contour.LineWidth;
    section["Annotate"] >> contour.Annotate;
    writer.Number({"Level"}, contour.Level, "depth of the contour")
        .Color({"TrueColor", "Color"}, contour.Color, "color")
        .Text({"LineType"}, LineTypeOf(section["LineType"].GetValue()), "line type")
        .Number({"LineWidth"}, contour.LineWidth, "line width")
        .Switch({"Annotate"}, contour.Annotate, "carries labels");
}

}  // namespace HOST
