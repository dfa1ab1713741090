// SPDX-License-Identifier: MIT
// What reading and saving cost for files of 10,000, 100,000 and 1,000,000 sections.
#include <marlin/contours/contour_definition_list.h>
#include <marlin/settings/ini_file.h>

#include <memory>

#include <bench/inputs.h>
#include <bench/jobs.h>

namespace {

using BENCH::RamFile;
using BENCH::Require;

constexpr int keysInSection = 6;

RamFile SettingsFile(int sections) {
    return {"growth.ini", BENCH::SettingsText({sections, keysInSection})};
}

ContourDefinitionList Contours(int count) {
    ContourDefinitionList list;
    Require(list.Generate(0.0, count, 1.0), "ContourDefinitionList::Generate");
    return list;
}

template <class Contents>
struct Saved {
    Contents Source;
    RamFile File{"growth.out"};
};

void ReadSettings(const RamFile& file) {
    IniFile settings;
    Require(settings.Open(file.Path()).Empty(), "IniFile::Open");
}

void LoadContours(const RamFile& file) {
    ContourDefinitionList list;
    Require(list.Load(file.Path().c_str()), "ContourDefinitionList::Load");
}

std::unique_ptr<Saved<IniFile>> Settings(int sections) {
    auto saved = std::make_unique<Saved<IniFile>>();
    Require(saved->Source.OpenText(BENCH::SettingsText({sections, keysInSection})).Empty(),
            "IniFile::OpenText");
    return saved;
}

std::unique_ptr<RamFile> ContourFile(int count) {
    auto file = std::make_unique<RamFile>("growth.cdf");
    Require(Contours(count).Save(file->Path().c_str()), "ContourDefinitionList::Save");
    return file;
}

void EnterSettings(int sections) {
    const std::string size = std::to_string(sections);
    BENCH::ContestInFreshMemory(
        "growth_settings_read_" + size + "/marlin", [sections] { return SettingsFile(sections); },
        ReadSettings);
    BENCH::ContestInFreshMemory(
        "growth_settings_save_" + size + "/marlin", [sections] { return Settings(sections); },
        [](const auto& saved) {
            Require(saved->Source.Save(saved->File.Path()).Empty(), "IniFile::Save");
        });
}

void EnterContours(int sections) {
    const std::string size = std::to_string(sections);
    BENCH::ContestInFreshMemory(
        "growth_contours_load_" + size + "/marlin", [sections] { return ContourFile(sections); },
        [](const auto& file) { LoadContours(*file); });
    BENCH::ContestInFreshMemory(
        "growth_contours_save_" + size + "/marlin",
        [sections] { return std::make_unique<Saved<ContourDefinitionList>>(Contours(sections)); },
        [](const auto& saved) {
            Require(saved->Source.Save(saved->File.Path().c_str()), "ContourDefinitionList::Save");
        });
}

}  // namespace

int main(int argc, char** argv) {
    for (const int sections : {10'000, 100'000, 1'000'000}) {
        EnterSettings(sections);
        EnterContours(sections);
    }
    return BENCH::Run(argc, argv);
}
