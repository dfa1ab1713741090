// SPDX-License-Identifier: MIT
#include "color_source.h"

#include "files.h"
#include "output/failure.h"
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
[[noreturn]] void FailBadEntry(const std::string& path, const FileObject& file) {
    for (int number = 0;; ++number) {
        CString key;
        key.Format("Entry(%d)", number);
        CString value;
        if (!file.GetEntry(sectionName, key, value)) {
            Fail(path + ": \"Below\" is no color word");
        }
        FileObject alone;
        alone.SetEntry(sectionName, "Entry(0)", value, FileObject::REPLACE);
        if (!ColorTable().FileOpen(alone)) {
            Fail(path + ": " + key.GetString() + " = \"" + value.GetString() +
                 "\" is not value,red,green,blue");
        }
    }
}

void TakeColorTable(const SettingsSource& source, ColorTable& table) {
    const std::string& path = source.Path();
    if (source.File().Empty()) {
        Fail(path + ": no section");
    }
    if (!source.File().HasSection(sectionName)) {
        Fail(path + ": no section [ColorTable]: not a color table");
    }
    const FileObject file = FileObjectOf(source.File()[sectionName]);
    // A section without a key leaves nothing in the file object, not even the color below.
    if (file.HasSection(sectionName) && !table.FileOpen(file)) {
        FailBadEntry(path, file);
    }
}

// A file of any other name than "col" and "cpt" may be either; a palette makes no settings file,
// so a failure to read it as one says nothing.
void ReadTable(const std::string& path, ColorTable& table) {
    if (HasExtension(path, "cpt")) {
        Require(ImportPalette(path, table));
        return;
    }
    std::string text;
    Require(ReadText(path, text));
    SettingsSource source;
    const ErrorString outcome = source.OpenText(path, text);
    if (HasExtension(path, "col")) {
        Require(outcome);
    } else if (!outcome.Empty() || !source.File().HasSection(sectionName)) {
        Require(ImportPalette(path, text, table));
        return;
    }
    TakeColorTable(source, table);
}

}  // namespace

bool HasExtension(const std::string& path, const char* extension) {
    const auto dot = path.rfind('.');
    return dot != std::string::npos &&
           MARLINSUITE::EqualIgnoringCase(std::string_view(path).substr(dot + 1), extension);
}

void ReadColors(const std::string& path, ColorTable& table) {
    ReadTable(path, table);
    if (table.NumEntries() == 0) {
        Fail(path + ": a color table without entries");
    }
}

}  // namespace HOST
