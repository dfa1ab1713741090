// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// The frame of a panel (a legend, a title block) on a plot's paper, in paper units. By default
/// empty, at (0, 0), not locked. It writes one key a field, in the place of a key of that name.
/// The plain keys of the position are "PosX" and "PosY"; with a prefix they are prefix + ".X" and
/// prefix + ".Y", the others prefix + "." + name.
///
/// Position and size are equal within `MATH::Equal`, the rest exactly.
class MARLIN_API PanelInfo {
public:
    double PosX = 0.0;
    double PosY = 0.0;
    float Width = 0.0F;
    float Height = 0.0F;
    bool LockPosSize = false;  ///< Whether the panel must not be moved or resized.
    int Justification = 0;     ///< The point at the position, in the host's anchor codes.

    PanelInfo() = default;
    PanelInfo(const PanelInfo&) = default;
    PanelInfo& operator=(const PanelInfo&) = default;
    virtual ~PanelInfo();

    bool operator==(const PanelInfo& other) const noexcept;

    /// Keys that are missing or unreadable keep their fields, but reset the justification to 0.
    /// Positions are read in single precision: about seven digits of them count. True.
    bool Read(const Section& section);
    bool Read(const std::string& prefix, const Section& section);
    /// True.
    bool Write(Section& section) const;
    bool Write(const std::string& prefix, Section& section) const;
    /// The keys in the order of `Write` with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);
};
