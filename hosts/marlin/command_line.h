// SPDX-License-Identifier: MIT
#pragma once

namespace HOST {

/// Reads the arguments, runs the command that they name, writes its output, and gives the
/// program's exit code.
[[nodiscard]] int RunCommandLine(int argc, char** argv);

}  // namespace HOST
