// SPDX-License-Identifier: MIT
#include "settings.h"

#include "commands.h"
#include "families.h"

namespace HOST {

namespace {

struct CheckCommand {
    std::vector<std::string> Files;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Words("FILE", Files, "Settings files");
        options.Json(IsJson);
    }
    int Run(Output& output) const {
        output.Json = IsJson;
        return CheckSettings(Files, output);
    }
};

struct ShowCommand {
    std::string File;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Word("FILE", File, "Settings file");
        options.Json(IsJson);
    }
    int Run(Output& output) const {
        output.Json = IsJson;
        return ShowSettings(File, output);
    }
};

}  // namespace

void AddSettings(Family& program) {
    Family settings = program.AddFamily("settings", "Settings files");
    settings.Add<CheckCommand>("check", "Look for faults, and whether sealed sections changed");
    AddSealSettings(settings);
    AddOneSetting(settings);
    settings.Add<ShowCommand>("show", "Show the records of a file and what they mean");
    AddDiffSettings(settings);
}

}  // namespace HOST
