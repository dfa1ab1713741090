// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/temporary_folder.h>
#include <sys/wait.h>

/// A session at a terminal: lines that begin with "$ " are commands, the lines after each are
/// what it prints, errors before results. "[1]" ends the output of a command that exits with 1.
struct Transcript {
    struct Step {
        std::string Command;
        std::string Printed;
    };

    std::string Title;
    std::vector<Step> Steps;

    /// Takes a line of a command or of its output.
    void Take(const std::string& line) {
        if (line.starts_with("$ ")) {
            Steps.push_back({line.substr(2), ""});
        } else {
            Steps.back().Printed += line + "\n";
        }
    }
};

/// The lines of a file without their line ends.
inline std::vector<std::string> LinesOf(const std::string& path) {
    std::istringstream text(TemporaryFolder::Read(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// The shell that runs the commands of one transcript, in a folder of its own. It finds `marlin`.
class Shell {
public:
    /// Returns all that the command prints, as a transcript has it. Every line of its errors, and
    /// no other, begins with "marlin: ".
    [[nodiscard]] std::string Run(const std::string& command) const {
        const std::string script = m_Output.Write("script", command + "\n");
        const std::string out = m_Output.File("out");
        const std::string err = m_Output.File("err");
        const std::string marlin = std::filesystem::path(MARLIN_PROGRAM).parent_path();
        const int status =
            std::system(("cd '" + m_Folder.File("") + "' && PATH='" + marlin +
                         "':$PATH bash -o pipefail '" + script + "' >'" + out + "' 2>'" + err + "'")
                            .c_str());
        for (const std::string& line : LinesOf(err)) {
            EXPECT_TRUE(line.starts_with("marlin: ")) << line;
        }
        std::string printed = TemporaryFolder::Read(err) + TemporaryFolder::Read(out);
        if (!printed.empty() && !printed.ends_with('\n')) {
            printed += "\\\n";
        }
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return code == 0 ? printed : printed + "[" + std::to_string(code) + "]\n";
    }

    [[nodiscard]] std::string Path(const std::string& name) const { return m_Folder.File(name); }

private:
    TemporaryFolder m_Folder;
    TemporaryFolder m_Output;
};
