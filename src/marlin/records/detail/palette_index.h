// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/color/dxf_color.h>
#include <marlin/records/record_field.h>
#include <marlin/settings/section_key.h>

namespace MARLINSUITE::detail {

/// A color that is kept as its index into the palette of DXF drawings, for programs that know no
/// other colors. Records keep the exact color word after it, which wins.
struct PaletteIndex {
    unsigned long& Color;

    explicit PaletteIndex(unsigned long& color) : Color(color) {}

    /// Any color of before would be a mixture of two records, so a missing index means black.
    void Read(const SectionKey& key) {
        int index = 0;
        key >> index;
        Set(index);
    }
    void Write(SectionKey& key) const { key << Index(); }
    [[nodiscard]] RecordValue Value() const { return DXFColor(Color); }

    [[nodiscard]] int Index() const { return DXFColor(Color).Index(); }
    /// Black for an index outside the palette.
    void Set(int index) { Color = static_cast<unsigned long>(DXFColor(index)); }
};

}  // namespace MARLINSUITE::detail
