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

#include <hosts/transcript.h>

namespace {

TEST(SettingsShow, RecordsThatTheLibraryWroteAreRecognisedAndNoOthers) {
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
    const Shell shell;
    ASSERT_TRUE(file.Save(shell.Path("all.ini")).Empty());
    EXPECT_EQ(shell.Run("marlin settings show all.ini | grep '^\\['"),
              "[a] line\n[b] DXF pen\n[c] map\n[d] grid\n[e] geographic grid\n[f] paper grid\n"
              "[g] contour settings\n[h] bias\n[h] panel\n[h] sun illumination Deep\n[i] bias\n"
              "[i] panel\n[i] sun illumination Deep\n[j] panel Legend\n[j] bias Deep.Two\n"
              "[k] text Style\n[k] depth label Label\n[k] line Pen\n");
}

}  // namespace
