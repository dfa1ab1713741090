// SPDX-License-Identifier: MIT
#include <array>

#include <fcntl.h>
#include <hosts/transcript.h>
#include <unistd.h>

namespace {

// Returns all that the command prints when its standard output is a terminal.
std::string OnTerminal(const std::string& command) {
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0) {
        return "(no terminal)";
    }
    const std::string name = ::ptsname(terminal);
    const int held = ::open(name.c_str(), O_RDWR | O_NOCTTY);  // keeps what was printed
    EXPECT_EQ(Shell().Run(command + " > " + name), "");
    std::array<char, 4096> text{};
    static_cast<void>(::read(terminal, text.data(), text.size() - 1));
    ::close(held);
    ::close(terminal);
    return text.data();
}

TEST(Terminal, HasSwatchesUnlessColorIsUnwanted) {
    const char* const plain = "Color    DXF  Palette\r\n#010203  158  #000b26\r\n";
    const char* const swatches =
        "Color       DXF  Palette\r\n"
        "\x1B[48;2;1;2;3m  \x1B[0m #010203  158  \x1B[48;2;0;11;38m  \x1B[0m #000b26\r\n";
    for (const auto& [environment, text] :
         {std::pair("TERM=xterm NO_COLOR=", swatches), std::pair("TERM=xterm NO_COLOR=1", plain),
          std::pair("TERM=dumb NO_COLOR=", plain), std::pair("TERM= NO_COLOR=", swatches),
          std::pair("env -u TERM -u NO_COLOR", swatches)}) {
        EXPECT_EQ(OnTerminal(std::string(environment) + " marlin colors dxf 1,2,3"), text)
            << environment;
    }
}

}  // namespace
