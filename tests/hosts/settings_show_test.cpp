// SPDX-License-Identifier: MIT
#include <marlin/contours/contour_info.h>
#include <marlin/records/bias_info.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/records/dxf_info.h>
#include <marlin/records/geo_grid_info.h>
#include <marlin/records/grid_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/map_info.h>
#include <marlin/records/panel_info.h>
#include <marlin/records/paper_grid.h>
#include <marlin/records/sun_illumination_info.h>
#include <marlin/settings/ini_file.h>

#include <hosts/program.h>

namespace {

// The headings of the records that are shown.
std::string Headings(const std::string& shown) {
    std::string headings;
    for (std::size_t at = 0; at < shown.size();) {
        const std::size_t end = std::min(shown.find('\n', at), shown.size());
        headings += shown[at] == '[' ? shown.substr(at, end - at) + "\n" : "";
        at = end + 1;
    }
    return headings;
}

TEST(SettingsShow, RecordsThatTheLibraryWroteAreRecognisedAndNoOthers) {
    const Program program;
    IniFile file;
    LineInfo().Write(file["a"]);
    DXFInfo().Write(file["b"]);
    CMapInfo().Write(file["c"]);
    GridInfo().Write(file["d"]);
    GeoGridInfo().Write(file["e"]);
    ASSERT_TRUE(PaperGrid().Write(file["f"]).Empty());
    ContourInfo().Write(file["g"]);
    for (const char* const name : {"h", "i"}) {
        PanelInfo().Write(file[name]);
        BiasInfo().Write(file[name]);
        SunIlluminationInfo().Write("Deep", file[name]);
    }
    PanelInfo().Write("Legend", file["j"]);
    BiasInfo().Write("Deep.Two", file["j"]);
    file["k"]["Style"] << TextInfo().ToString();
    file["k"]["Label"] << DepthLabelInfo().ToString();
    file["k"]["Pen"] << LineInfo().ToString();
    file["k"]["Other"] << "1,2,3,4,5";
    ASSERT_TRUE(file.Save(program.Path("all.ini")).Empty());
    const ProgramResult result = program.Run("settings show all.ini");
    EXPECT_EQ(result.Code, 0);
    EXPECT_EQ(Headings(result.Out),
              "[a] line\n[b] DXF pen\n[c] map\n[d] grid\n[e] geographic grid\n[f] paper grid\n"
              "[g] contour settings\n[h] bias\n[h] panel\n[h] sun illumination Deep\n[i] bias\n"
              "[i] panel\n[i] sun illumination Deep\n[j] panel Legend\n[j] bias Deep.Two\n"
              "[k] text Style\n[k] depth label Label\n[k] line Pen\n");
}

TEST(SettingsShow, FilesByHandShowValuesTheirKeysAndDefaults) {
    const Program program;
    program.Write("hand.ini",
                  "[Border]\nlinecolor=1\nLINESTYLE=dot\n[Name]\nWidth=3\nEnable=1\n"
                  "[Contour(0)]\nLevel=-12.5\nTrueColor=255\nLineType=dashed\nAnnotate=1\n"
                  "[Grid]\nXInterval=100\nTickSize=2\nGridStyle=POINTS,X_LINES\n");
    ExpectSteps(program, {{"settings show hand.ini", 0,
                           "[Border] line\n"
                           "Key        Value    Meaning\n"
                           "(default)  yes      the line is drawn\n"
                           "(default)  0.1      width\n"
                           "linecolor  #ff0000  color, palette index 10\n"
                           "LINESTYLE  Dot      dash pattern\n"
                           "\n[Contour(0)] contour definition\n"
                           "Key        Value    Meaning\n"
                           "Level      -12.5    depth of the contour\n"
                           "TrueColor  #ff0000  color, palette index 10\n"
                           "LineType   DASHED   line type\n"
                           "(default)  0        line width\n"
                           "Annotate   yes      carries labels\n"
                           "\n[Grid] grid\n"
                           "Key        Value  Meaning\n"
                           "XInterval  100    distance of the lines in x\n"
                           "(default)  50     distance of the lines in y\n"
                           "GridStyle  3      points, x lines\n"
                           "TickSize   2      length of the ticks\n"
                           "(default)  1      length of the minor ticks\n"
                           "(default)         text beside the eastings\n"
                           "(default)         text beside the northings\n"}});
}

TEST(SettingsShow, JsonNamesSectionRecordAndFields) {
    const Program program;
    program.Write("s.ini", "[\xD8]\nNorth.BiasMode=2\n[B]\nk=1\n");
    ExpectSteps(program,
                {{"settings show --json s.ini", 0,
                  "[\n  {\n    \"section\": \"Ø\",\n    \"record\": \"bias\",\n"
                  "    \"name\": \"North\",\n    \"fields\": [\n      {\n"
                  "        \"key\": \"North.BiasMode\",\n        \"value\": \"2\",\n"
                  "        \"meaning\": \"bias mode\"\n      }\n    ]\n  }\n]\n"},
                 {"settings show none.ini", 2, "", "none.ini: No such file or directory"}});
}

}  // namespace
