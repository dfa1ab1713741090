// SPDX-License-Identifier: MIT
#include "commands.h"
#include "input.h"
#include "settings_source.h"
#include <marlin/core/number_text.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>

namespace HOST {

namespace {

// The arguments as texts of the file.
ErrorString ToFileTexts(const SettingArguments& typed, SettingArguments& texts) {
    texts.File = typed.File;
    for (const auto member :
         {&SettingArguments::Section, &SettingArguments::Key, &SettingArguments::Value}) {
        ErrorString error = TextOfArgument(typed.*member, texts.*member);
        if (!error.Empty()) {
            return error;
        }
    }
    return {};
}

std::string Quoted(std::string_view text) {
    return "\"" + Shown(text) + "\"";
}

bool IsSealed(const Section& section) {
    return section.HasKey(*Section::m_ChecksumName) && !section.IsModified();
}

// A key without name and comment is an empty line.
auto NumWritten(const Section& section) {
    return std::ranges::count_if(section.Keys(), [](const SectionKey& key) {
        return key.IsValid() || !key.GetComments().empty();
    });
}

// Whether the value comes back, alone, when the file that would be written is read.
bool IsKept(const SettingsSource& source, const SettingArguments& setting) {
    IniFile read;
    if (!read.OpenText(source.Text()).Empty() ||
        read.NumSections() != source.File().NumSections()) {
        return false;
    }
    const IniFile& stored = read;
    const Section& section = stored[setting.Section];
    return NumWritten(section) == NumWritten(source.File()[setting.Section]) &&
           section.HasKey(setting.Key) && section[setting.Key].GetValue() == setting.Value;
}

std::string DescribeSet(const SettingsSource& source, const SettingArguments& setting) {
    const IniFile& file = source.File();
    const Section& section = file[setting.Section];
    std::string text;
    if (!section.IsValid()) {
        text += "new section [" + Shown(setting.Section) + "]\n";
    }
    text += section.HasKey(setting.Key) ? "" : "new key ";
    text += "[" + Shown(setting.Section) + "] " + Shown(setting.Key) + " = " +
            Shown(setting.Value) + "\n";
    if (IsSealed(section)) {
        text += "[" + Shown(setting.Section) + "] was sealed and is now changed\n";
    }
    return text;
}

// All sections when none is named.
ErrorString Choose(SettingsSource& source, const std::vector<std::string>& names,
                   std::vector<Section*>& chosen) {
    for (int i = 0; names.empty() && i < source.File().NumSections(); ++i) {
        chosen.push_back(&source.File()[i]);
    }
    for (const std::string& argument : names) {
        std::string name;
        ErrorString error = TextOfArgument(argument, name);
        if (error.Empty() && !source.File().HasSection(name)) {
            error = ErrorString(source.Path() + ": no section " + Quoted(name));
        }
        if (!error.Empty()) {
            return error;
        }
        chosen.push_back(&source.File()[name]);
    }
    return {};
}

// False for a section that is sealed as it stands.
bool AddSeal(Section* section) {
    if (IsSealed(*section)) {
        return false;
    }
    section->AddChecksum();
    return true;
}

}  // namespace

int GetSetting(const SettingArguments& arguments, Output& output) {
    SettingArguments wanted;
    SettingsSource source;
    if (const ErrorString error = ToFileTexts(arguments, wanted); !error.Empty()) {
        return Unusable(error);
    }
    if (const ErrorString error = source.OpenWithSections(wanted.File); !error.Empty()) {
        return Unusable(error);
    }
    const IniFile& file = source.File();
    const Section& section = file[wanted.Section];
    if (!section.IsValid()) {
        return Refused(wanted.File + ": no section " + Quoted(wanted.Section));
    }
    const SectionKey& key = section[wanted.Key];
    if (!key.IsValid()) {
        return Refused(wanted.File + ": no key " + Quoted(wanted.Key) + " in section " +
                       Quoted(wanted.Section));
    }
    output.Text += PLATFORM::ToUtf8(key.GetValue()) + "\n";
    return DONE;
}

int SetSetting(const SettingArguments& arguments, Output& output) {
    SettingArguments setting;
    SettingsSource source;
    if (const ErrorString error = ToFileTexts(arguments, setting); !error.Empty()) {
        return Unusable(error);
    }
    if (setting.Section.empty() || setting.Key.empty()) {
        return Unusable("SECTION and KEY must not be empty");
    }
    if (const ErrorString error = source.Open(setting.File); !error.Empty()) {
        return Unusable(error);
    }
    if (const ErrorString error = source.CanBeSaved(); !error.Empty()) {
        return Unusable(error);
    }
    const std::string description = DescribeSet(source, setting);
    source.File()[setting.Section][setting.Key] << setting.Value;
    if (!IsKept(source, setting)) {
        return Unusable(setting.File + ": a settings file cannot hold [" + Shown(setting.Section) +
                        "] " + Shown(setting.Key) + " = " + Shown(setting.Value));
    }
    if (const ErrorString error = source.Save(); !error.Empty()) {
        return Unusable(error);
    }
    output.Text += description;
    return DONE;
}

int SealSettings(const std::string& path, const std::vector<std::string>& sections,
                 Output& output) {
    SettingsSource source;
    if (const ErrorString error = source.OpenWithSections(path); !error.Empty()) {
        return Unusable(error);
    }
    if (const ErrorString error = source.CanBeSaved(); !error.Empty()) {
        return Unusable(error);
    }
    std::vector<Section*> chosen;
    if (const ErrorString error = Choose(source, sections, chosen); !error.Empty()) {
        return Refused(error.Text());
    }
    const auto numSealed = static_cast<int>(std::ranges::count_if(chosen, AddSeal));
    if (numSealed == 0) {
        output.Text += "already sealed, nothing written\n";
        return DONE;
    }
    if (const ErrorString error = source.Save(); !error.Empty()) {
        return Unusable(error);
    }
    MARLINSUITE::AppendNumber(output.Text, numSealed);
    output.Text += numSealed == 1 ? " section sealed\n" : " sections sealed\n";
    return DONE;
}

}  // namespace HOST
