// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>

namespace GTL {

/// The types a plane coordinate may have.
template <class T>
concept Coordinate = std::same_as<T, int> || std::same_as<T, float> || std::same_as<T, double>;

/// The types a coordinate of a space point or of a box may have.
template <class T>
concept RealCoordinate = std::same_as<T, float> || std::same_as<T, double>;

}  // namespace GTL
