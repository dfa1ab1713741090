// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

#include <string>

class Section;

/// A bias mode, whose values are the host's; 0 by default. It writes one key, in the place of a
/// key of that name; with a prefix the key is prefix + "." + name.
class MARLIN_API BiasInfo {
public:
    int BiasMode = 0;

    BiasInfo() = default;
    BiasInfo(const BiasInfo&) = default;
    BiasInfo& operator=(const BiasInfo&) = default;
    virtual ~BiasInfo();

    bool operator==(const BiasInfo& other) const noexcept = default;

    /// A key that is missing or unreadable keeps the field; true.
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
