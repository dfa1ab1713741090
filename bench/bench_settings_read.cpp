// SPDX-License-Identifier: MIT
// A settings file becomes sections and keys in memory, and they are freed again.
#include <marlin/settings/ini_file.h>

#include <map>
#include <memory>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <glib.h>
#include <ini.h>

namespace {

using BENCH::RamFile;
using BENCH::Require;

void ReadIniFile(const RamFile& file) {
    IniFile settings;
    Require(settings.Open(file.Path()).Empty(), "IniFile::Open");
    benchmark::DoNotOptimize(settings.NumSections());
}

using Map = std::map<std::string, std::map<std::string, std::string>>;

int StoreInMap(void* user, const char* section, const char* name, const char* value) {
    (*static_cast<Map*>(user))[section][name] = value;
    return 1;
}

void ReadMap(const RamFile& file) {
    Map settings;
    Require(ini_parse(file.Path().c_str(), StoreInMap, &settings) == 0, "ini_parse");
    benchmark::DoNotOptimize(settings.size());
}

int CountKey(void* user, const char* /*section*/, const char* /*name*/, const char* /*value*/) {
    ++*static_cast<int*>(user);
    return 1;
}

void ReadNothing(const RamFile& file) {
    int keys = 0;
    Require(ini_parse(file.Path().c_str(), CountKey, &keys) == 0, "ini_parse");
    benchmark::DoNotOptimize(keys);
}

void ReadKeyFile(const RamFile& file) {
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> settings(g_key_file_new(),
                                                                         g_key_file_free);
    Require(g_key_file_load_from_file(settings.get(), file.Path().c_str(), G_KEY_FILE_NONE,
                                      nullptr) != 0,
            "g_key_file_load_from_file");
}

}  // namespace

int main(int argc, char** argv) {
    for (const BENCH::Shape shape :
         {BENCH::Shape{200, 25}, BENCH::Shape{100'000, 6}, BENCH::Shape{100'000, 6, true}}) {
        const std::string job = "settings_read_" + shape.Text();
        const auto file = [shape] { return RamFile("read.ini", BENCH::SettingsText(shape)); };
        BENCH::Contest(job + "/marlin", file, ReadIniFile);
        BENCH::Contest(job + "/inih_map", file, ReadMap);
        BENCH::Contest(job + "/inih_bare", file, ReadNothing);
        BENCH::Contest(job + "/gkeyfile", file, ReadKeyFile);
    }
    return BENCH::Run(argc, argv);
}
