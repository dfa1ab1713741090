// SPDX-License-Identifier: MIT
#include "command_line.h"
#include "output/output.h"

#include <exception>

int main(int argc, char** argv) {
    try {
        return HOST::RunCommandLine(argc, argv);
    } catch (const std::exception& exception) {  // no memory left, as a rule
        HOST::Report(std::string(exception.what()));
        return HOST::UNUSABLE;
    }
}
