// SPDX-License-Identifier: MIT
#pragma once

namespace HOST {

/// Runs the command that the arguments name and prints its output or the reason of its failure.
/// Returns the exit code.
[[nodiscard]] int RunCommandLine(int argc, char** argv);

}  // namespace HOST
