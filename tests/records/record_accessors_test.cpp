// SPDX-License-Identifier: MIT
// Every setter stores in the field of its getter, and in no other one.
#include <marlin/records/depth_label_info.h>
#include <marlin/records/dxf_info.h>
#include <marlin/records/geo_grid_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/map_info.h>
#include <marlin/records/paper_grid.h>

#include <concepts>
#include <string>

#include <gtest/gtest.h>

namespace {

// Calls the setter on a record with its defaults, and expects the lines that this changes.
template <class Record, class Taken, class Given, class Value>
void Expect(void (Record::*set)(Taken), Given (Record::*get)() const, const Value& value,
            const std::string& changes) {
    Record record;
    EXPECT_NE((record.*get)(), value) << changes;
    (record.*set)(value);
    EXPECT_EQ((record.*get)(), value) << changes;
    std::string changed;
    const MARLINSUITE::RecordFields before = Record().Fields();
    const MARLINSUITE::RecordFields after = record.Fields();
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::string name = after[i].Key.Name;
        if (after[i].Text != before[i].Text) {
            changed += (name.empty() ? std::to_string(i) : name) + '=' + after[i].Text + '\n';
        }
    }
    EXPECT_EQ(changed, changes);
    if constexpr (std::equality_comparable<Record>) {
        EXPECT_FALSE(record == Record()) << changes;
    }
}

TEST(RecordAccessors, OfLinesAndPens) {
    using Line = LineInfo;
    Expect(&Line::SetWidth, &Line::Width, 2.5F, "LineWidth=2.500000\n");
    Expect(&Line::SetColor, &Line::Color, 0xFFUL, "LineColor=10\nLineTrueColor=255\n");
    Expect(&Line::SetStyle, &Line::Style, Line::DOTTED_LINE, "LineStyle=Dot\n");
    Expect(&Line::SetStyleStr, &Line::StyleStr, "Dashed", "LineStyle=Dashed\n");
    Expect(&Line::SetEnable, &Line::Enable, false, "Enable=0\n");
    Expect(&DXFInfo::SetWidth, &DXFInfo::Width, 2.5F, "DXFLineWidth=2.500000\n");
    Expect(&DXFInfo::SetColor, &DXFInfo::Color, 0xFFUL, "DXFLineColor=10\nDXFLineTrueColor=255\n");
    Expect(&DXFInfo::SetColorMode, &DXFInfo::ColorMode, -7, "DXFColorMode=-7\n");
}

TEST(RecordAccessors, OfMaps) {
    using Map = CMapInfo;
    Expect(&Map::SetSymbolizationType, &Map::SymbolizationType, 5, "SymbolizationType=5\n");
    Expect(&Map::SetScaleLevel, &Map::ScaleLevel, 5, "ScaleLevel=5\n");
    Expect(&Map::SetDisplayType, &Map::DisplayType, 5, "DisplayType=5\n");
    Expect(&Map::SetTextGeneric, &Map::TextGeneric, false, "ShowTextGeneric=0\n");
    Expect(&Map::SetTextOther, &Map::TextOther, true, "ShowTextOther=1\n");
    Expect(&Map::SetChartContour, &Map::ChartContour, false, "ShowChartContour=0\n");
    Expect(&Map::SetLightsInfo, &Map::LightsInfo, true, "ShowLightsInfo=1\n");
    Expect(&Map::SetAntiCluttering, &Map::AntiCluttering, false, "AntiCluttering=0\n");
    Expect(&Map::SetBoundaries, &Map::Boundaries, false, "ShowBoundaries=0\n");
}

TEST(RecordAccessors, OfGrids) {
    using Geo = GeoGridInfo;
    Expect(&Geo::GridColor, &Geo::GridColor, 0xFFUL, "GridColor=10\nGridTrueColor=255\n");
    Expect(&Geo::LatLonStyle, &Geo::LatLonStyle, 5, "LatLonStyle=5\n");
    Expect(&Geo::LatLonDecimals, &Geo::LatLonDecimals, -5, "LatLonDecimals=-5\n");
    Expect(&Geo::TrailingHemisphereIndicator, &Geo::TrailingHemisphereIndicator, true,
           "TrailingHemisphereIndicator=1\n");
    Expect(&Geo::DegMinSecSymbols, &Geo::DegMinSecSymbols, true, "DegMinSecSymbols=1\n");
    Expect(&Geo::GridStyle, &Geo::GridStyle, 5, "GridStyle=5\n");
    Expect(&Geo::LatInterval, &Geo::LatInterval, 0.5, "LatInterval=0.500\n");
    Expect(&Geo::LonInterval, &Geo::LonInterval, 0.5, "LonInterval=0.500\n");
    using Paper = PaperGrid;
    Expect(&Paper::XStep, &Paper::XStep, 2.5, "XStep=2.500000\n");
    Expect(&Paper::YStep, &Paper::YStep, 2.5, "YStep=2.500000\n");
    Expect(&Paper::Visible, &Paper::Visible, false, "Visible=0\n");
    Expect(&Paper::SnapOn, &Paper::SnapOn, false, "SnapOn=0\n");
}

TEST(RecordAccessors, OfTextsAndDepthLabels) {
    using Text = TextInfo;
    Expect(&Text::SetFont, &Text::Font, std::string("Times"), "0=Times\n");
    Expect(&Text::SetSize, &Text::Size, 3.5F, "1=3.5\n");
    Expect(&Text::SetStyle, &Text::Style, Text::BOLD, "2=1\n");
    Expect(&Text::SetStyle, &Text::Style, Text::ITALIC | Text::UNDERLINE, "2=6\n");
    Expect(&Text::SetJustification, &Text::Justification, Text::TOP_LEFT, "3=6\n");
    Expect(&Text::SetColor, &Text::Color, 0xFFUL, "4=10\n9=255\n");
    Expect(&Text::SetRotation, &Text::Rotation, Angle(30.25), "5=30.25\n");
    Expect(&Text::SetRectWidth, &Text::RectWidth, 3.5F, "6=3.5\n");
    Expect(&Text::SetMultiLine, &Text::MultiLine, true, "7=1\n");
    Expect(&Text::SetAnnotation, &Text::Annotation, Text::ANNOTATION_3, "8=3\n");
    using Label = DepthLabelInfo;
    Expect(&Label::SetPrecision, &Label::Precision, -1, "10=-1\n");
    Expect(&Label::SetPresentation, &Label::Presentation, Label::PRESENTATION_4, "11=4\n");
    Expect(&Label::SetPlacement, &Label::Placement, Label::PLACEMENT_2, "12=2\n");
    Expect(&Label::UseTextColor, &Label::UseTextColor, false, "13=0\n");
    Expect(&Label::AutoTextRotation, &Label::AutoTextRotation, false, "14=0\n");
    Expect(&Label::SetUnderlineDryingHeights, &Label::GetUnderlineDryingHeights, true, "15=1\n");
    Expect(&Label::SetNoDecimalZeros, &Label::GetNoDecimalZeros, true, "16=1\n");
}

TEST(RecordAccessors, SizesLoseTheirSignAndColorsTheirBitsAbove32) {
    LineInfo line;
    line.SetWidth(-0.5F);
    line.SetColor(0x12345000000FFUL);
    DXFInfo pen;
    pen.SetWidth(-3.0F);
    pen.SetColor(0x12345000000FFUL);
    TextInfo text;
    text.SetFont("");
    text.SetSize(-4.0F);
    text.SetRectWidth(-5.0F);
    text.SetColor(0x12345000000FFUL);
    GeoGridInfo grid;
    grid.LatInterval(-0.5);
    grid.LonInterval(-0.25);
    grid.GridColor(0x12345000000FFUL);
    EXPECT_EQ(line.ToString(), "0.5,10,Solid Line,255,1");
    EXPECT_EQ(pen.ToString(), "3,10,0,255");
    EXPECT_EQ(text.ToString(), "Arial,4,0,0,10,0,5,0,0,255");
    EXPECT_EQ(grid.LatInterval() + grid.LonInterval(), 0.75);
    EXPECT_EQ(grid.GridColor(), 0xFFUL);
}

}  // namespace
