// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/settings_source.h"

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

// One value of a file; the names are those that were typed until `Convert` gives them the file's
// encoding.
struct OneSetting {
    std::string File;
    std::string Section;
    std::string Key;

    void Declare(Options& options) {
        options.Word("FILE", File, "Settings file");
        options.Word("SECTION", Section, "Its name, in any case");
        options.Word("KEY", Key, "Its name, in any case");
    }
    void Convert(const SettingsText& text) {
        Section = text.FromArgument(Section);
        Key = text.FromArgument(Key);
    }
};

struct GetSetting : OneSetting {
    int Run(Output& output);
};

int GetSetting::Run(Output& output) {
    SettingsSource source;
    Require(source.OpenWithSections(File));
    Convert(source.Text());
    const IniFile& file = source.File();
    const ::Section& section = file[Section];
    if (!section.IsValid()) {
        Refuse(File + ": no section " + Quoted(Section));
    }
    const SectionKey& key = section[Key];
    if (!key.IsValid()) {
        Refuse(File + ": no key " + Quoted(Key) + " in section " + Quoted(Section));
    }
    output.Text += AsUtf8(key.GetValue()) + "\n";
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
        return "[" + AsUtf8(Section) + "] " + AsUtf8(Key) + " = " + AsUtf8(Value);
    }
    void Describe(const IniFile& file, Output& output) const;
    void Change(SettingsSource& source) const;
    void RequireKept(SettingsSource& source) const;
};

void SetSetting::Describe(const IniFile& file, Output& output) const {
    const ::Section& section = file[Section];
    if (!section.IsValid()) {
        output.Say("new section [" + Section + "]");
    }
    output.Say((section.HasKey(Key) ? "" : "new key ") + Assignment());
    if (IsSealed(section) && section[Key].GetValue() != Value) {
        Report(File + ": [" + Section + "] was sealed and is now changed");
    }
}

void SetSetting::Change(SettingsSource& source) const {
    const IniFile& file = source.File();
    ::Section section = file.HasSection(Section) ? file[Section] : ::Section(Section);
    section[Key] << Value;
    SettingsText& text = source.Text();
    for (int i = 0; i < file.NumSections(); ++i) {
        if (file[i].GetName() == section.GetName()) {
            std::string& block = text.Blocks()[static_cast<std::size_t>(i)];
            block = text.Updated(block, section);
            return;
        }
    }
    text.Append(text.NewBlock(section));
}

// Reads the file that would be written: the value must come back, and no other line with it. That
// holds whatever the grammar gives a meaning to.
void SetSetting::RequireKept(SettingsSource& source) const {
    IniFile read;
    const ErrorString outcome = read.OpenText(source.Text().Bytes());
    const IniFile& stored = read;
    const IniFile& old = source.File();
    const ::Section& section = stored[Section];
    const bool isNew = !old.HasSection(Section);
    if (!outcome.Empty() || read.NumSections() != old.NumSections() + (isNew ? 1 : 0) ||
        NumWritten(section) != NumWritten(old[Section]) + (old[Section].HasKey(Key) ? 0 : 1) ||
        !section.HasKey(Key) || section[Key].GetValue() != Value) {
        Fail(File + ": a settings file cannot hold " + Assignment());
    }
}

int SetSetting::Run(Output& output) {
    if (Section.empty() || Key.empty()) {
        Fail("SECTION and KEY must not be empty");
    }
    SettingsSource source;
    source.Lock(File);
    Require(source.Open(File));
    Convert(source.Text());
    Value = source.Text().FromArgument(Value);
    Change(source);
    RequireKept(source);
    source.Save(output);
    Describe(source.File(), output);
    return DONE;
}

}  // namespace

void AddOneSetting(Family& settings) {
    settings.Add<GetSetting>("get", "Print a value");
    settings.Add<SetSetting>("set", "Change or add a value");
}

}  // namespace HOST
