// SPDX-License-Identifier: MIT
#include "input/input.h"
#include "input/settings_source.h"
#include "settings.h"
#include <marlin/platform/text/code_page.h>

#include <algorithm>

namespace HOST {

namespace {

std::string Quoted(std::string_view text) {
    return "\"" + Shown(text) + "\"";
}

// A key without name and comment is an empty line.
auto NumWritten(const Section& section) {
    return std::ranges::count_if(section.Keys(), [](const SectionKey& key) {
        return key.IsValid() || !key.GetComments().empty();
    });
}

// One value of a file; the names are those that were typed until `Convert` makes them texts of
// the file.
struct OneSetting {
    std::string File;
    std::string Section;
    std::string Key;

    void Declare(Options& options) {
        options.Word("FILE", File, "Settings file");
        options.Word("SECTION", Section, "Its name, in any case");
        options.Word("KEY", Key, "Its name, in any case");
    }
    void Convert() {
        Section = TextOfArgument(Section);
        Key = TextOfArgument(Key);
    }
};

struct GetSetting : OneSetting {
    int Run(Output& output);
};

int GetSetting::Run(Output& output) {
    Convert();
    SettingsSource source;
    Require(source.OpenWithSections(File));
    const IniFile& file = source.File();
    const ::Section& section = file[Section];
    if (!section.IsValid()) {
        Refuse(File + ": no section " + Quoted(Section));
    }
    const SectionKey& key = section[Key];
    if (!key.IsValid()) {
        Refuse(File + ": no key " + Quoted(Key) + " in section " + Quoted(Section));
    }
    output.Text += PLATFORM::ToUtf8(key.GetValue()) + "\n";
    return DONE;
}

struct SetSetting : OneSetting {
    std::string Value;

    void Declare(Options& options) {
        OneSetting::Declare(options);
        options.Word("VALUE", Value, R"(Behind "--" if it begins with "-")");
    }
    int Run(Output& output);

private:
    [[nodiscard]] std::string Assignment() const {
        return "[" + Shown(Section) + "] " + Shown(Key) + " = " + Shown(Value);
    }
    [[nodiscard]] std::string Describe(const IniFile& file) const;
    [[nodiscard]] bool IsKept(const SettingsSource& source) const;
};

std::string SetSetting::Describe(const IniFile& file) const {
    const ::Section& section = file[Section];
    std::string text = section.IsValid() ? "" : "new section [" + Shown(Section) + "]\n";
    text += (section.HasKey(Key) ? "" : "new key ") + Assignment() + "\n";
    if (IsSealed(section)) {
        text += "[" + Shown(Section) + "] was sealed and is now changed\n";
    }
    return text;
}

// Reads the file that would be written: the value must come back, and no other line with it. That
// holds whatever the grammar gives a meaning to.
bool SetSetting::IsKept(const SettingsSource& source) const {
    IniFile read;
    if (!read.OpenText(source.Text()).Empty() ||
        read.NumSections() != source.File().NumSections()) {
        return false;
    }
    const IniFile& stored = read;
    const ::Section& section = stored[Section];
    return NumWritten(section) == NumWritten(source.File()[Section]) && section.HasKey(Key) &&
           section[Key].GetValue() == Value;
}

int SetSetting::Run(Output& output) {
    Convert();
    Value = TextOfArgument(Value);
    if (Section.empty() || Key.empty()) {
        Fail("SECTION and KEY must not be empty");
    }
    SettingsSource source;
    Require(source.Open(File));
    Require(source.CanBeSaved());
    const std::string description = Describe(source.File());
    source.File()[Section][Key] << Value;
    if (!IsKept(source)) {
        Fail(File + ": a settings file cannot hold " + Assignment());
    }
    Require(source.Save());
    output.Text += description;
    return DONE;
}

}  // namespace

void AddOneSetting(Family& settings) {
    settings.Add<GetSetting>("get", "Print a value");
    settings.Add<SetSetting>("set", "Change or add a value");
}

}  // namespace HOST
