// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/files/detail/settings_writer.h>
#include <marlin/settings/section.h>

namespace MARLINSUITE {

/// Writes a section as it stands in a settings file.
inline void WriteSection(SettingsWriter& writer, const Section& section) {
    int longestName = 0;
    int longestValue = 0;
    section.GetWriteOffsets(longestName, longestValue);
    writer.BeginSection(*section.GetName(), section.GetComments(),
                        static_cast<std::size_t>(longestName),
                        static_cast<std::size_t>(longestValue));
    for (const SectionKey& key : section.Keys()) {
        writer.AddKey(*key.GetName(), key.GetValue(), key.GetComments());
    }
    writer.EndSection();
}

}  // namespace MARLINSUITE
