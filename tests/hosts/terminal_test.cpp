// SPDX-License-Identifier: MIT
#include <tuple>

#include <hosts/program.h>

namespace {

// Returns all that the program prints when its standard output is a terminal.
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

TEST(Terminal, HasSwatchesUnlessColorIsUnwanted) {
    const std::string plain = "Color    DXF  Palette\r\n#010203  158  #000b26\r\n";
    const std::string swatches =
        "Color       DXF  Palette\r\n"
        "\x1B[48;2;1;2;3m  \x1B[0m #010203  158  \x1B[48;2;0;11;38m  \x1B[0m #000b26\r\n";
    const std::vector<std::tuple<const char*, const char*, std::string>> cases = {
        {"xterm", "", swatches}, {"xterm", "1", plain}, {"dumb", "", plain}, {"", "", swatches}};
    for (const auto& [terminal, noColor, text] : cases) {
        ::setenv("TERM", terminal, 1);
        ::setenv("NO_COLOR", noColor, 1);
        EXPECT_EQ(OnTerminal("colors dxf 1,2,3"), text) << terminal << " " << noColor;
    }
    ::unsetenv("NO_COLOR");
    ::unsetenv("TERM");
    EXPECT_EQ(OnTerminal("colors dxf 1,2,3"), swatches);
}

}  // namespace
