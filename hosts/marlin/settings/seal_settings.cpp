// SPDX-License-Identifier: MIT
#include "input/input.h"
#include "input/settings_source.h"
#include "settings.h"

#include <algorithm>

namespace HOST {

namespace {

// All sections when none is named.
std::vector<Section*> Choose(IniFile& file, const std::string& path,
                             const std::vector<std::string>& names) {
    std::vector<Section*> chosen;
    for (int i = 0; names.empty() && i < file.NumSections(); ++i) {
        chosen.push_back(&file[i]);
    }
    for (const std::string& argument : names) {
        const std::string name = TextOfArgument(argument);
        if (!file.HasSection(name)) {
            Refuse(path + ": no section \"" + Shown(name) + "\"");
        }
        chosen.push_back(&file[name]);
    }
    return chosen;
}

// Returns false for a section whose seal still fits.
bool AddSeal(Section* section) {
    if (IsSealed(*section)) {
        return false;
    }
    section->AddChecksum();
    return true;
}

struct SealSettings {
    std::string File;
    std::vector<std::string> Names;

    void Declare(Options& options) {
        options.Word("FILE", File, "Settings file");
        options.OptionalWords("SECTION", Names, "Sections; without any, all");
    }

    int Run(Output& output) const {
        SettingsSource source;
        Require(source.OpenWithSections(File));
        Require(source.CanBeSaved());
        const auto numSealed = std::ranges::count_if(Choose(source.File(), File, Names), AddSeal);
        if (numSealed == 0) {
            output.Text += "already sealed, nothing written\n";
            return DONE;
        }
        Require(source.Save());
        output.Text += CountText(static_cast<std::size_t>(numSealed), "section") + " sealed\n";
        return DONE;
    }
};

}  // namespace

void AddSealSettings(Family& settings) {
    settings.Add<SealSettings>("seal", "Store checksums, for check to compare");
}

}  // namespace HOST
