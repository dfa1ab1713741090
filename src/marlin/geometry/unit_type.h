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
    /// The units. Their numbers are part of the interface.
    enum U_TYPE : int {
        U_MM = 0,      ///< millimetres
        U_CM = 1,      ///< centimetres
        U_M = 2,       ///< metres
        U_INCHES = 3,  ///< international inches of 25.4 mm
        U_FEET = 4,    ///< international feet of 12 inches
    };

    constexpr UnitType() noexcept = default;
    /// The unit of that type, which is not checked.
    constexpr UnitType(U_TYPE type) noexcept : m_Type(type) {}

    /// One of the five, unless a host has stored another number.
    [[nodiscard]] constexpr U_TYPE GetType() const noexcept { return m_Type; }
    /// The name for people, "UNKNOWN" for a value that is not a unit.
    [[nodiscard]] std::string AsString() const;

    /// The value in another unit, by a fixed table of factors; unchanged when the units are the
    /// same. Both must be units; any other value gives one that is not a number.
    [[nodiscard]] static double Convert(U_TYPE from, U_TYPE to, double value) noexcept;
    /// A value in this unit in another one, by the same table.
    [[nodiscard]] double Convert(U_TYPE to, double value) const noexcept {
        return Convert(m_Type, to, value);
    }

    /// Stores the unit unchecked.
    constexpr void SetType(U_TYPE type) noexcept { m_Type = type; }

    /// Whether both are the same unit.
    [[nodiscard]] constexpr bool operator==(const UnitType&) const noexcept = default;

private:
    U_TYPE m_Type = U_MM;
};
