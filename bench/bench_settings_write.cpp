// SPDX-License-Identifier: MIT
// Sections and keys in memory become a settings file, in the place of the one before.
#include <marlin/settings/ini_file.h>

#include <memory>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <boost/property_tree/ini_parser.hpp>

namespace {

using BENCH::RamFile;
using BENCH::Require;

template <class Settings>
struct Input {
    Settings Contents;
    RamFile File{"write.ini"};
};

template <class Settings, class Read>
std::unique_ptr<Input<Settings>> Prepared(BENCH::Shape shape, Read read) {
    const RamFile source("source.ini", BENCH::SettingsText(shape));
    auto input = std::make_unique<Input<Settings>>();
    read(source.Path(), input->Contents);
    return input;
}

using Tree = boost::property_tree::ptree;

}  // namespace

int main(int argc, char** argv) {
    for (const BENCH::Shape shape : {BENCH::Shape{200, 25}, BENCH::Shape{100'000, 6}}) {
        const std::string job = "settings_write_" + shape.Text();
        BENCH::Contest(
            job + "/marlin",
            [shape] {
                return Prepared<IniFile>(shape, [](const std::string& path, IniFile& settings) {
                    Require(settings.Open(path).Empty(), "IniFile::Open");
                });
            },
            [](const auto& input) {
                Require(input->Contents.Save(input->File.Path()).Empty(), "IniFile::Save");
            });
        BENCH::Contest(
            job + "/property_tree",
            [shape] {
                return Prepared<Tree>(shape, [](const std::string& path, Tree& settings) {
                    boost::property_tree::read_ini(path, settings);
                });
            },
            [](const auto& input) {
                boost::property_tree::write_ini(input->File.Path(), input->Contents);
            });
    }
    return BENCH::Run(argc, argv);
}
