// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// A bias mode; its values belong to the host, and the default is 0. A record writes one key, which
/// replaces a key of that name. With a prefix the key is prefix + "." + name.
///
/// @code
/// BiasInfo bias;
/// bias.BiasMode = 2;
/// Section section("Sounder");
/// bias.Write("North", section);  // sets the key "North.BiasMode"
/// BiasInfo read;
/// read.Read("North", section);
/// assert(read == bias);
/// @endcode
class MARLIN_API BiasInfo {
public:
    int BiasMode = 0;  ///< A code of the host, any integer.

    BiasInfo() = default;
    BiasInfo(const BiasInfo&) = default;
    BiasInfo(BiasInfo&&) = default;
    BiasInfo& operator=(const BiasInfo&) = default;
    BiasInfo& operator=(BiasInfo&&) = default;
    virtual ~BiasInfo();

    /// Exact.
    bool operator==(const BiasInfo& other) const noexcept = default;

    /// Returns true. A key that is missing or unreadable leaves the field as it was.
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
