// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// A unit of length. Default millimetres.
class MARLIN_API UnitType {
public:
    enum U_TYPE : int { U_MM = 0, U_CM = 1, U_M = 2, U_INCHES = 3, U_FEET = 4 };

    constexpr UnitType() noexcept = default;
    constexpr UnitType(U_TYPE type) noexcept : m_Type(type) {}

    [[nodiscard]] constexpr U_TYPE GetType() const noexcept { return m_Type; }
    /// The name to show, "UNKNOWN" for a value that is none of the units.
    [[nodiscard]] std::string AsString() const;

    /// The value in another unit, by a fixed table of factors; unchanged when the units are the
    /// same. Both must be units: anything else gives what is not a number.
    [[nodiscard]] static double Convert(U_TYPE from, U_TYPE to, double value) noexcept;
    [[nodiscard]] double Convert(U_TYPE to, double value) const noexcept {
        return Convert(m_Type, to, value);
    }

    constexpr void SetType(U_TYPE type) noexcept { m_Type = type; }

    [[nodiscard]] constexpr bool operator==(const UnitType&) const noexcept = default;

private:
    U_TYPE m_Type = U_MM;
};
