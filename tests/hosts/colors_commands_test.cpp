// SPDX-License-Identifier: MIT
#include <hosts/program.h>

namespace {

TEST(ColorCommands, ColorsAreTakenInAllTheirForms) {
    const Program program;
    ExpectSteps(program, {{"colors dxf red #FF8080 165,8,0 84/84/84 DXF:30 White black", 0,
                           "Color    DXF  Palette\n"
                           "#ff0000   10  #ff0000\n"
                           "#ff8080   11  #ff827f\n"
                           "#a50800   12  #a50800\n"
                           "#545454  250  #545454\n"
                           "#ff7f00   30  #ff7f00\n"
                           "#ffffff    7  #000000\n"
                           "#000000    0  #000000\n"},
                          {"colors dxf --json blue", 0,
                           "[\n  {\n    \"argument\": \"blue\",\n    \"color\": \"#0000ff\",\n"
                           "    \"dxf\": 170,\n    \"palette\": \"#0000ff\"\n  }\n]\n"}});
    for (const char* color : {"", "#12345", "#1234567", "#-12345", "1,2", "1,2,3,4", "1,2,256",
                              "1,-2,3", "1/2,3", "dxf:256", "dxf:", "pink", " red"}) {
        SCOPED_TRACE(color);
        const ProgramResult result = program.Run({"colors", "dxf", "red", color});
        EXPECT_EQ(result.Code, 2);
        EXPECT_EQ(result.Out, "");
        EXPECT_NE(result.Err.find("marlin: \"" + std::string(color) + "\" is no color: "),
                  std::string::npos)
            << result.Err;
    }
}

TEST(ColorCommands, APaletteBecomesAColorTableThatShowsTheSame) {
    const Program program;
    program.Write("p.cpt", "# COLOR_MODEL = RGB\n0 10/20/30 5 10/20/30\nB 1/2/3\nF 255/255/255\n");
    const std::string table =
        " From  Color    DXF\n"
        "below  #010203  158\n"
        "    0  #0a141e  158\n"
        "    5  #ffffff    7\n";
    ExpectSteps(program, {{"colors show p.cpt", 0, table},
                          {"colors convert p.cpt t.COL", 0, "t.COL: 2 entries\n"},
                          {"colors show t.COL", 0, table},
                          {"colors convert p.cpt q.cpt", 2, "",
                           "q.cpt: only color tables (.col) are written"}});
    EXPECT_EQ(program.Read("t.COL"),
              "[ColorTable]\r\nBelow    = 197121\r\nEntry(0) = 0,10,20,30\r\n"
              "Entry(1) = 5,255,255,255\r\n\r\n");
}

TEST(ColorCommands, ATableThatDoesNotReadIsNamedWithItsFault) {
    const Program program;
    program.Write("bad.cpt", "0 0/0/0 1 0/0/0\n1 red 2 none-such\n");
    program.Write("bad.col", "[ColorTable]\nEntry(0)=1,2,3,4\nEntry(1)=1,2,3\n");
    program.Write("below.col", "[ColorTable]\nBelow=x\nEntry(0)=1,2,3,4\n");
    program.Write("no.col", "[Other]\nk=1\n");
    program.Write("twice.col", "[ColorTable]\n[A]\n[colortable]\n");
    program.Write("empty.col", "[ColorTable]\n");
    const ProgramResult result = program.Run("colors show bad.cpt");
    EXPECT_EQ(result.Code, 2);
    EXPECT_EQ(result.Err.find("marlin: bad.cpt:2: "), 0U) << result.Err;
    ExpectSteps(
        program,
        {
            {"colors show bad.col", 2, "",
             "bad.col: Entry(1) = \"1,2,3\" is not value,red,green,blue"},
            {"colors show below.col", 2, "", "below.col: \"Below\" is no color word"},
            {"colors show no.col", 2, "", "no.col: no section [ColorTable]: not a color table"},
            {"colors convert twice.col x.col", 2, "",
             "twice.col:3: Error! Duplicate sectioncolortable found! The first is on line 1."},
            {"contours generate --table empty.col -o x.cdf", 2, "",
             "empty.col: a color table without entries"},
        });
}

// What the program prints when its standard output is a terminal.
std::string OnTerminal(const Words& arguments) {
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0) {
        return "(no terminal)";
    }
    const std::string name = ::ptsname(terminal);
    const int held = ::open(name.c_str(), O_RDWR | O_NOCTTY);  // keeps what was printed
    Program program;
    program.SetStandardOutput(name);
    program.Run(arguments);
    char text[4096];
    const ssize_t size = ::read(terminal, text, sizeof text);
    ::close(held);
    ::close(terminal);
    return size < 0 ? "(nothing)" : std::string(text, static_cast<std::size_t>(size));
}

TEST(ColorCommands, SwatchesAreForTerminalsAndNotWhereColorIsUnwanted) {
    ::unsetenv("NO_COLOR");
    EXPECT_EQ(OnTerminal("colors dxf 1,2,3"),
              "Color       DXF  Palette\r\n"
              "\x1B[48;2;1;2;3m  \x1B[0m #010203  158  \x1B[48;2;0;11;38m  \x1B[0m #000b26\r\n");
    ::setenv("NO_COLOR", "1", 1);
    EXPECT_EQ(OnTerminal("colors dxf 1,2,3"), "Color    DXF  Palette\r\n#010203  158  #000b26\r\n");
    ::unsetenv("NO_COLOR");
}

}  // namespace
