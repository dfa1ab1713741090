// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/colors/color_table.h>
#include <marlin/color/dxf_color.h>
#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

#include <cstddef>
#include <vector>

/// A color table that knows the DXF color of every entry, so that a depth becomes a DXF color.
/// `Unique` and `MakeDXFTable` put the DXF colors in step with the entries; changes of the
/// entries, a `FileOpen` among them, do not. Until they are in step again, an entry without a
/// DXF color of its own gives the default. A new table is empty; its default DXF color is 0.
///
/// @code
/// DXFColorTable depths;
/// depths.AddEntry(0.0, RGBColor(255, 0, 0));
/// depths.AddEntry(20.0, RGBColor(0, 0, 255));
/// depths.MakeDXFTable();
/// assert(depths[15.0] == DXFColor(10));
/// @endcode
class MARLIN_API DXFColorTable : public ColorTable {
public:
    using ColorTable::FileOpen;
    using ColorTable::FileSave;

    DXFColorTable() = default;
    DXFColorTable(const DXFColorTable&) = default;
    DXFColorTable(DXFColorTable&&) = default;
    DXFColorTable& operator=(const DXFColorTable&) = default;
    DXFColorTable& operator=(DXFColorTable&&) = default;
    ~DXFColorTable() override;

    /// The index must lie in 0 to `NumEntries()` - 1.
    [[nodiscard]] DXFColor EntryDxfColor(int i) const noexcept;
    /// The DXF color of the last entry at or below the value. The default DXF color below the
    /// first entry, in an empty table, and for a value that is not a number.
    [[nodiscard]] DXFColor operator[](double value) const noexcept { return GetDXFColor(value); }

    /// Rebuilds the DXF colors and the default one; of neighboring entries of one color word
    /// only the first, lowest, stays.
    void Unique();
    /// Gives every entry the palette's color for it; then as `Unique`.
    void MakeDXFTable();

    /// Reads a color table file into the entries alone; DXF colors stay. False, and no entries,
    /// when it cannot be read or holds no valid table.
    bool FileOpen(const CString& path);
    /// Writes the entries as a color table file; false when it cannot be written or a value is not
    /// finite, with the cause in `ErrorString::LastError()`; an old file is then unchanged.
    bool FileSave(const CString& path) const;

    /// Values and color words of the entries alone, exactly.
    bool operator==(const DXFColorTable& other) const noexcept {
        return m_Values == other.m_Values && m_Colors == other.m_Colors;
    }

protected:
    [[nodiscard]] DXFColor GetDXFColor(double value) const noexcept;
    /// Among the entries `lo` to `hi`, both included, the last at or below the value; the value
    /// must not lie below entry `lo`.
    [[nodiscard]] DXFColor FindDXFColor(double value, int lo, int hi) const noexcept;

private:
    [[nodiscard]] DXFColor DxfColorOrDefault(std::size_t entry) const noexcept;

    std::vector<DXFColor> m_DxfColors;
    DXFColor m_DefaultDxfColor;
};
