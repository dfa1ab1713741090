// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// A unit of length. Default millimetres.
///
/// @code
/// assert(UnitType::Convert(UnitType::U_INCHES, UnitType::U_MM, 2.0) == 50.8);
/// assert(UnitType(UnitType::U_M).AsString() == "m");
/// @endcode
class MARLIN_API UnitType {
public:
    enum U_TYPE : int { U_MM = 0, U_CM = 1, U_M = 2, U_INCHES = 3, U_FEET = 4 };

    constexpr UnitType() noexcept = default;
    constexpr UnitType(U_TYPE type) noexcept : m_Type(type) {}

    [[nodiscard]] constexpr U_TYPE GetType() const noexcept { return m_Type; }
    /// The name for people, "UNKNOWN" for a value that is not a unit.
    [[nodiscard]] std::string AsString() const;

    /// The value in another unit, by a fixed table of factors; unchanged when the units are the
    /// same. Both must be units; any other value gives one that is not a number.
    [[nodiscard]] static double Convert(U_TYPE from, U_TYPE to, double value) noexcept;
    [[nodiscard]] double Convert(U_TYPE to, double value) const noexcept {
        return Convert(m_Type, to, value);
    }

    constexpr void SetType(U_TYPE type) noexcept { m_Type = type; }

    [[nodiscard]] constexpr bool operator==(const UnitType&) const noexcept = default;

private:
    U_TYPE m_Type = U_MM;
};
