// SPDX-License-Identifier: MIT
#include <hosts/program.h>

namespace {

std::string ContourText(int number, const std::string& level, const std::string& rest) {
    return "[Contour(" + std::to_string(number) + ")]\r\nLevel     = " + level + "\r\n" + rest +
           "\r\n";
}

const std::string blackLine =
    "Color     = 0\r\nTrueColor = 0\r\nLineType  = CONTINUOUS\r\nLineWidth = 0.000000\r\n"
    "Annotate  = 0\r\n";

TEST(ContourCommands, ARangeBecomesItsMultiples) {
    const Program program;
    ExpectSteps(program, {
                             {"contours generate --range -7 3 5 -o f.cdf", 0, "f.cdf: 2 levels\n"},
                             {"contours list f.cdf", 0,
                              "Level  Color    DXF  Line type   Width  Labels\n"
                              "   -5  #000000    0  CONTINUOUS      0  no\n"
                              "    0  #000000    0  CONTINUOUS      0  no\n"},
                             {"contours generate --range -.5 .5 .25 -o g", 0, "g: 5 levels\n"},
                         });
    EXPECT_EQ(program.Read("f.cdf"),
              ContourText(0, "-5.000000", blackLine) + ContourText(1, "0.000000", blackLine));
}

TEST(ContourCommands, ARangeThatGivesNoFileIsRefused) {
    const Program program;
    const std::string bounds =
        "--range: LOW must be below HIGH and INTERVAL above 0, for at most 10000000 levels";
    const std::string into = "contours generate -o f --range ";
    ExpectSteps(program, {
                             {into + "5 5 1", 2, "", bounds},
                             {into + "0 10 0", 2, "", bounds},
                             {into + "0 1 1e-9", 2, "", bounds},
                             {into + "0 x 1", 2, "", "--range: \"x\" is no number"},
                             {into + "1 2 5", 1, "",
                              "no multiple of the interval lies in the range; nothing written"},
                             {"contours generate -o f", 2, "", "--range or --table is required"},
                         });
    EXPECT_EQ(program.NumFiles(), 0);
    // Levels that six decimals cannot tell apart would be one level twice.
    ExpectSteps(program,
                {{into + "0 0.000001 0.0000005", 0,
                  "f: 2 levels\n1 left out: the next has the same level in six decimals\n"}});
}

TEST(ContourCommands, APaletteBecomesLevelsWithItsColors) {
    const Program program;
    program.Write("p.cpt", "-20 0/0/255 -10 0/0/255\n-10 250/5/5 0 250/5/5\nF white\n");
    program.Write("plain", "[ColorTable]\nBelow=0\nEntry(0)=5,255,0,0\n");
    ExpectSteps(program,
                {
                    {"contours generate --table p.cpt -o f", 0, "f: 3 levels\n"},
                    {"contours list f", 0,
                     "Level  Color    DXF  Line type   Width  Labels\n"
                     "  -20  #0000ff  170  CONTINUOUS      0  no\n"
                     "  -10  #fa0505   10  CONTINUOUS      0  no\n"
                     "    0  #ffffff    7  CONTINUOUS      0  no\n"},
                    // Palette entries 170, 10 and, for white, 7, which is black.
                    {"contours generate --table p.cpt --snap-dxf -o f", 0, "f: 3 levels\n"},
                    {"contours list f", 0,
                     "Level  Color    DXF  Line type   Width  Labels\n"
                     "  -20  #0000ff  170  CONTINUOUS      0  no\n"
                     "  -10  #ff0000   10  CONTINUOUS      0  no\n"
                     "    0  #000000    0  CONTINUOUS      0  no\n"},
                    {"contours generate --table plain --invert -o f", 0, "f: 1 level\n"},
                    {"contours list --json f", 0,
                     R"({
  "file": "f",
  "contours": [
    {
      "level": 5,
      "color": "#000000",
      "dxf": 0,
      "lineType": "CONTINUOUS",
      "lineWidth": 0,
      "labels": false
    }
  ]
}
)"},
                });
}

TEST(ContourCommands, LevelsAreAddedInOrderChangedAndRemoved) {
    const Program program;
    ExpectSteps(
        program,
        {
            {"contours add f 10 -20 5.0000004 --label on", 0, "3 levels added to a new file\n"},
            {"contours add f 7 5", 1, "", "f: level 5 exists; nothing written"},
            {"contours add f 7 7", 1, "", "f: level 7 exists; nothing written"},
            {"contours set f -20 5 --color 10/20/30 --line-type dashed --width 0.35 --label off", 0,
             "2 levels set\n"},
            {"contours set f 5 6 --color red", 1, "", "f: level 6 is not there; nothing written"},
            {"contours remove f -20", 0, "1 level removed\n"},
            {"contours remove f 5 10", 1, "",
             "f: a contour file keeps one level at least; nothing written"},
            {"contours list f", 0,
             "Level  Color    DXF  Line type   Width  Labels\n"
             "    5  #0a141e  158  DASHED       0.35  no\n"
             "   10  #000000    0  CONTINUOUS      0  yes\n"},
        });
}

TEST(ContourCommands, EditingKeepsCommentsSealsAndOtherSections) {
    const Program program;
    program.Write("f",
                  "; mine\n[Contour(0)]\nLevel=1\nColor=1\n;red, by its index\n[Notes]\nk=v\n"
                  "[Contour(1)]\nLevel=3\nColor=2\nTrueColor=65535\nLineWidth=1\nAnnotate=1\n");
    ExpectSteps(program, {{"settings seal f Contour(1)", 0, "1 section sealed\n"},
                          {"contours add f 2", 0, "1 level added\n"},
                          {"contours list f", 0,
                           "Level  Color    DXF  Line type   Width  Labels\n"
                           "    1  #ff0000   10  CONTINUOUS      0  no\n"
                           "    2  #000000    0  CONTINUOUS      0  no\n"
                           "    3  #ffff00   50  CONTINUOUS      1  yes\n"}});
    const std::string text = program.Read("f");
    EXPECT_EQ(text.find("; mine\n[Contour(0)]\r\nLevel"), 0U);
    EXPECT_NE(text.find(";red, by its index"), std::string::npos);
    EXPECT_NE(text.find("[Notes]\r\nk = v"), std::string::npos);
    const ProgramResult check = program.Run("settings check f");
    EXPECT_NE(check.Out.find("sealed, unchanged"), std::string::npos) << check.Out;
}

TEST(ContourCommands, FilesAndOptionsThatMakeNoSenseAreRefusedWhole) {
    const Program program;
    const std::string text = "[Contour(0)]\nLevel=1\n[Contour(2)]\nLevel=2\n";
    program.Write("gap", text);
    program.Write("twice", "[Contour(0)]\nLevel=1\n[Contour(1)]\nLevel=1.0000001\n");
    program.Write("other", "[A]\nk=1\n");
    program.Write("one", "[Contour(0)]\nLevel=1\n");
    const std::string gap =
        "gap: no section [Contour(1)], but others of higher numbers, which are not read";
    ExpectSteps(program,
                {
                    {"contours list gap", 2, "", gap},
                    {"contours add gap 5", 2, "", gap},
                    {"contours remove twice 1", 2, "",
                     "twice: level 1 stands twice, in [Contour(0)] and [Contour(1)]"},
                    {"contours list other", 2, "",
                     "other: no section [Contour(0)]: not a contour definition file"},
                    {"contours set one 1", 2, "",
                     "nothing to set: --color, --line-type, --width or --label"},
                    {"contours set one 1x --width 1", 2, "", "LEVEL: \"1x\" is no number"},
                    {"contours set one 1 --width -1", 2, "",
                     "--width: \"-1\" is not a number of 0 or more"},
                    {"contours set one 1 --line-type wavy", 2, "",
                     "--line-type: \"wavy\" is not continuous, dashed or dotted"},
                    {"contours set one 1 --label yes", 2, "", "--label: \"yes\" is not on or off"},
                });
    EXPECT_EQ(program.Read("gap"), text);
}

}  // namespace
