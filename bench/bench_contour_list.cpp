// SPDX-License-Identifier: MIT
// 20,000 contours are added to an empty list, which is freed again.
#include <marlin/contours/contour_definition_list.h>

#include <algorithm>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <boost/container/flat_map.hpp>

namespace {

using Definition = ContourDefinitionList::ContourDefInfo;

constexpr int count = 20'000;

// A definition without its level, which is the key.
struct Style {
    float LineWidth = 0.0F;
    int LineType = 0;
    unsigned long Color = 0;
    bool Annotate = false;
};

std::vector<double> Random() {
    BENCH::Numbers numbers;
    std::vector<double> levels;
    for (int i = 0; i < count; ++i) {
        levels.push_back(numbers.Fraction() * 10'000.0);
    }
    return levels;
}

std::vector<double> Ascending() {
    std::vector<double> levels = Random();
    std::sort(levels.begin(), levels.end());
    return levels;
}

void AddToList(const std::vector<double>& levels) {
    ContourDefinitionList list;
    Definition definition;
    for (const double level : levels) {
        definition.Level = level;
        benchmark::DoNotOptimize(list.Add(definition));
    }
    BENCH::Require(list.NumContours() == count, "ContourDefinitionList::Add");
}

void AddToMap(const std::vector<double>& levels) {
    boost::container::flat_map<double, Style> map;
    for (const double level : levels) {
        benchmark::DoNotOptimize(map.emplace(level, Style()));
    }
    BENCH::Require(map.size() == count, "flat_map::emplace");
}

}  // namespace

int main(int argc, char** argv) {
    BENCH::Contest("contour_add_ascending/marlin", Ascending, AddToList);
    BENCH::Contest("contour_add_ascending/flat_map", Ascending, AddToMap);
    BENCH::Contest("contour_add_random/marlin", Random, AddToList);
    BENCH::Contest("contour_add_random/flat_map", Random, AddToMap);
    return BENCH::Run(argc, argv);
}
