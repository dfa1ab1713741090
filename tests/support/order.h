// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

/// Expects that all comparisons tell the values apart and order them as they stand.
template <class T>
void ExpectAscending(const std::vector<T>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (std::size_t k = 0; k < values.size(); ++k) {
            EXPECT_EQ(values[i] == values[k], i == k) << i << ' ' << k;
            EXPECT_EQ(values[i] < values[k], i < k) << i << ' ' << k;
            EXPECT_EQ(values[i] > values[k], i > k) << i << ' ' << k;
            EXPECT_EQ(values[i] <= values[k], i <= k) << i << ' ' << k;
            EXPECT_EQ(values[i] >= values[k], i >= k) << i << ' ' << k;
        }
    }
}
