// SPDX-License-Identifier: MIT
#include "nearest_word.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace HOST {

namespace {

// The edit distance, computed row by row: `row[j]` is that of the letters of `a` so far and the
// first `j` of `b`.
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : a) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (letter == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

}  // namespace

std::string NearestWord(std::string_view typed, const std::vector<std::string>& words) {
    return *std::ranges::min_element(
        words, {}, [typed](const std::string& word) { return Distance(typed, word); });
}

}  // namespace HOST
