// SPDX-License-Identifier: MIT
// Each of the 25 keys of a section is found once by its name, as a record does that reads itself.
#include <marlin/settings/section.h>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <boost/property_tree/ptree.hpp>

namespace {

using Tree = boost::property_tree::ptree;

template <class Settings>
struct Input {
    Settings Contents;
    std::vector<std::string> Names;
};

template <class Settings, class Add>
Input<Settings> Prepared(Settings empty, Add add) {
    Input<Settings> input{std::move(empty), {}};
    BENCH::Numbers numbers;
    int key = 0;
    for (const std::string_view name : BENCH::KeyNames) {
        input.Names.emplace_back(name);
        add(input.Contents, input.Names.back(), BENCH::Value(key++, numbers));
    }
    return input;
}

}  // namespace

int main(int argc, char** argv) {
    BENCH::Contest(
        "lookup_25/marlin",
        [] {
            return Prepared(Section("Display"),
                            [](Section& section, const std::string& name,
                               const std::string& value) { section[name] << value; });
        },
        [](const Input<Section>& input) {
            for (const std::string& name : input.Names) {
                benchmark::DoNotOptimize(input.Contents[name].GetValue().data());
            }
        });
    BENCH::Contest(
        "lookup_25/property_tree",
        [] {
            return Prepared(Tree(),
                            [](Tree& tree, const std::string& name, const std::string& value) {
                                tree.push_back({name, Tree(value)});
                            });
        },
        [](const Input<Tree>& input) {
            for (const std::string& name : input.Names) {
                benchmark::DoNotOptimize(input.Contents.find(name)->second.data().data());
            }
        });
    return BENCH::Run(argc, argv);
}
