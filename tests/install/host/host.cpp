// SPDX-License-Identifier: MIT
// Adds a section to a settings file, saves it under the path given, opens it again and prints it
// with the size of the color table that is installed.
#include <marlin/shared.h>

#include <cstdio>

namespace {

int InstalledColors() {
    CString path("shelf.col");
    DataSearch::GetDataSearch().GetFullPath(4, path);
    FileObject file;
    ColorTable table;
    return file.FileOpen(path, 0x20) && table.FileOpen(file) ? table.NumEntries() : -1;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        return 2;
    }
    Section section("Survey");
    section += SectionKey("Vessel", "Marlin", " who sailed");
    section += SectionKey("Lines", 12);
    section.AddChecksum();
    IniFile file;
    file.AddSection(section);
    if (const ErrorString error = file.Save(argv[1]); !error.Empty()) {
        std::puts(error.Text().c_str());
        return 1;
    }

    IniFile opened;
    if (const ErrorString error = opened.Open(argv[1]); !error.Empty()) {
        std::puts(error.Text().c_str());
        return 1;
    }
    const IniFile& stored = opened;
    const Section& survey = stored["SURVEY"];
    int lines = 0;
    survey["lines"] >> lines;
    std::printf("%s sailed %d lines, %s, in %d colors\n", survey["Vessel"].GetValue().c_str(),
                lines, survey.IsModified() ? "modified" : "unmodified", InstalledColors());
    return 0;
}
