// SPDX-License-Identifier: MIT
// A thousand decimal numbers become text and back.
#include <marlin/core/number_text.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include <bench/inputs.h>
#include <bench/jobs.h>

namespace {

constexpr int count = 1000;

// Depths, coordinates and the like: up to seven digits before the point.
std::vector<double> Values() {
    constexpr std::array<double, 4> scales = {1.0, 100.0, 10'000.0, 10'000'000.0};
    BENCH::Numbers numbers;
    std::vector<double> values;
    for (std::size_t i = 0; i < count; ++i) {
        values.push_back((numbers.Fraction() - 0.5) * scales[i % scales.size()]);
    }
    return values;
}

std::vector<std::string> SixDecimals() {
    std::vector<std::string> texts;
    for (const double value : Values()) {
        texts.push_back(std::to_string(value));
    }
    return texts;
}

std::vector<std::string> AllDigits() {
    std::vector<std::string> texts;
    for (const double value : Values()) {
        MARLINSUITE::AppendShortest(texts.emplace_back(), value);
    }
    return texts;
}

template <class Prepare>
void ContestOfReaders(const std::string& job, Prepare prepare) {
    BENCH::Contest(job + "/marlin", prepare, [](const std::vector<std::string>& texts) {
        double value = 0.0;
        for (const std::string& text : texts) {
            benchmark::DoNotOptimize(MARLINSUITE::ParseNumber(text, value));
            benchmark::DoNotOptimize(value);
        }
    });
    BENCH::Contest(job + "/strtod", prepare, [](const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            benchmark::DoNotOptimize(std::strtod(text.c_str(), nullptr));
        }
    });
}

}  // namespace

int main(int argc, char** argv) {
    ContestOfReaders("double_from_six_decimals", SixDecimals);
    ContestOfReaders("double_from_all_digits", AllDigits);
    BENCH::Contest("double_to_six_decimals/marlin", Values, [](const std::vector<double>& values) {
        std::string text;
        for (const double value : values) {
            text.clear();
            MARLINSUITE::AppendFixed(text, value, 6);
            benchmark::DoNotOptimize(text.data());
        }
    });
    BENCH::Contest("double_to_six_decimals/snprintf", Values,
                   [](const std::vector<double>& values) {
                       std::array<char, 64> text;
                       for (const double value : values) {
                           std::snprintf(text.data(), text.size(), "%.6f", value);
                           benchmark::DoNotOptimize(text.data());
                       }
                   });
    return BENCH::Run(argc, argv);
}
