// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// The frame of a panel (a legend, a title block) on a plot's paper, in paper units. By default
/// empty, at (0, 0), not locked. A record writes one key a field, which replaces a key of that
/// name. With a prefix the keys are prefix + "." + name, those of the position prefix + ".X" and
/// ".Y". Equality compares position and size by `MATH::Equal`, the other fields exactly.
///
/// @code
/// PanelInfo legend;
/// legend.PosX = 20.0;
/// Section section("Layout");
/// legend.Write("Legend", section);
/// assert(section["Legend.X"].GetValue() == "20.000000");
/// @endcode
class MARLIN_API PanelInfo {
public:
    double PosX = 0.0;         ///< The panel's x on the paper.
    double PosY = 0.0;         ///< The panel's y on the paper.
    float Width = 0.0F;        ///< The panel's size in x, not checked.
    float Height = 0.0F;       ///< The panel's size in y, not checked.
    bool LockPosSize = false;  ///< Whether the panel must not be moved or resized.
    int Justification = 0;     ///< The point of the panel at the position, a code of the host.

    PanelInfo() = default;
    PanelInfo(const PanelInfo&) = default;
    PanelInfo(PanelInfo&&) = default;
    PanelInfo& operator=(const PanelInfo&) = default;
    PanelInfo& operator=(PanelInfo&&) = default;
    virtual ~PanelInfo();

    /// Position and size within the tolerance of `MATH::Equal`, all else exactly.
    bool operator==(const PanelInfo& other) const noexcept;

    /// Returns true. Without a readable key a field stays as it was, but the justification becomes
    /// 0. Positions are read in single precision, which is about seven digits.
    bool Read(const Section& section);
    /// The same with keys that begin with the prefix and a ".".
    bool Read(const std::string& prefix, const Section& section);
    /// Sets each key in its place, or appends it; returns true.
    bool Write(Section& section) const;
    /// The same with keys that begin with the prefix and a ".".
    bool Write(const std::string& prefix, Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);
};
