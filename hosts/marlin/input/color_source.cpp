// SPDX-License-Identifier: MIT
#include "color_source.h"

#include "input.h"
#include "settings_source.h"
#include <marlin/base/colors/palette_import.h>
#include <marlin/base/files/file_object.h>
#include <marlin/core/ascii.h>

#include <string_view>

namespace HOST {

namespace {

const char* const sectionName = "ColorTable";

// Of two entries of one key the first counts.
FileObject FileObjectOf(const Section& section) {
    FileObject file;
    for (const SectionKey& key : section.Keys()) {
        file.SetEntry(sectionName, key.GetName().c_str(), key.GetValue().c_str(),
                      FileObject::APPEND);
    }
    return file;
}

// The library says that an entry does not convert, not which: each is offered alone.
ErrorString FindBadEntry(const std::string& path, const FileObject& file) {
    for (int number = 0;; ++number) {
        CString key;
        key.Format("Entry(%d)", number);
        CString value;
        if (!file.GetEntry(sectionName, key, value)) {
            return ErrorString(path + ": \"Below\" is no color word");
        }
        FileObject alone;
        alone.SetEntry(sectionName, "Entry(0)", value, FileObject::REPLACE);
        if (!ColorTable().FileOpen(alone)) {
            return ErrorString(path + ": " + key.GetString() + " = \"" + value.GetString() +
                               "\" is not value,red,green,blue");
        }
    }
}

ErrorString ReadColorTable(const std::string& path, ColorTable& table) {
    SettingsSource source;
    if (ErrorString error = source.OpenWithSections(path); !error.Empty()) {
        return error;
    }
    const IniFile& settings = source.File();
    if (!settings.HasSection(sectionName)) {
        return ErrorString(path + ": no section [ColorTable]: not a color table");
    }
    const FileObject file = FileObjectOf(settings[sectionName]);
    if (!file.HasSection(sectionName)) {  // nothing in it, not even the color below
        table.Clear();
        return {};
    }
    return table.FileOpen(file) ? ErrorString() : FindBadEntry(path, file);
}

bool HoldsColorTable(const std::string& path) {
    SettingsSource source;
    const ErrorString error = source.Open(path);
    return error.Empty() && source.File().HasSection(sectionName);
}

}  // namespace

bool HasExtension(const std::string& path, const char* extension) {
    const std::string_view wanted(extension);
    const auto dot = path.rfind('.');
    return dot != std::string::npos &&
           PLATFORM::EqualIgnoringCase(std::string_view(path).substr(dot + 1), wanted);
}

ErrorString ReadColors(const std::string& path, ColorTable& table) {
    const bool isColorTable =
        HasExtension(path, "col") || (!HasExtension(path, "cpt") && HoldsColorTable(path));
    ErrorString error = isColorTable ? ReadColorTable(path, table) : ImportPalette(path, table);
    if (error.Empty() && table.NumEntries() == 0) {
        return ErrorString(path + ": a color table without entries");
    }
    return error;
}

}  // namespace HOST
