// SPDX-License-Identifier: MIT
#include "output.h"

#include <marlin/base/error_string.h>

#include <cerrno>
#include <cstdio>

namespace HOST {

void Report(const std::string& message) {
    const std::string line = "marlin: " + Printable(AsUtf8(message)) + "\n";
    static_cast<void>(std::fputs(line.c_str(), stderr));  // there is nowhere else to say it
}

void Output::Say(const std::string& line) {
    if (IsFile) {
        Report(line);
    } else {
        Text += Printable(AsUtf8(line)) + "\n";
    }
}

int Finish(const Output& output, int code) {
    errno = 0;
    const bool isWhole =
        std::fwrite(output.Text.data(), 1, output.Text.size(), stdout) == output.Text.size();
    // A full disk may show only when the last buffer is written.
    if (std::fflush(stdout) == 0 && isWhole) {
        return code;
    }
    Report(MARLINSUITE::SystemReason("standard output", errno));
    return UNUSABLE;
}

}  // namespace HOST
