// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/files.h"
#include "input/settings_source.h"

#include <algorithm>

namespace HOST {

namespace {

// All sections when none is named.
std::vector<int> Choose(SettingsSource& source, const std::vector<std::string>& names) {
    const IniFile& file = source.File();
    std::vector<int> chosen;
    for (int i = 0; names.empty() && i < file.NumSections(); ++i) {
        chosen.push_back(i);
    }
    for (const std::string& argument : names) {
        const std::string name = source.Text().FromArgument(argument);
        const auto found =
            std::ranges::find(file.Sections(), HashedString(name), &Section::GetName);
        if (found == file.Sections().end()) {
            Refuse(source.Path() + ": no section \"" + AsUtf8(name) + "\"");
        }
        chosen.push_back(static_cast<int>(found - file.Sections().begin()));
    }
    return chosen;
}

// Returns false for a section whose seal still fits.
bool AddSeal(SettingsSource& source, int position) {
    Section& section = source.File()[position];
    if (IsSealed(section)) {
        return false;
    }
    section.AddChecksum();
    std::string& block = source.Text().Blocks()[static_cast<std::size_t>(position)];
    block = source.Text().Updated(block, section);
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
        source.Lock(File);
        Require(source.OpenWithSections(File));
        const auto numSealed = std::ranges::count_if(
            Choose(source, Names), [&source](int position) { return AddSeal(source, position); });
        if (numSealed == 0 && !IsStandard(File)) {
            output.Say("already sealed, nothing written");
            return DONE;
        }
        source.Save(output);
        output.Say(CountText(static_cast<std::size_t>(numSealed), "section") + " sealed");
        return DONE;
    }
};

}  // namespace

void AddSealSettings(Family& settings) {
    settings.Add<SealSettings>("seal", "Store checksums, for check to compare");
}

}  // namespace HOST
