// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/files/file_object.h>
#include <marlin/core/export.h>

#include <vector>

/// A table of (value, color word) entries in ascending order of value, with a color for the
/// values below the first entry. A new table is empty, with black below. A color word has red in
/// bits 0 to 7, green in bits 8 to 15 and blue in bits 16 to 23.
///
/// @code
/// ColorTable depths;
/// depths.AddEntry(20.0, 0xFF0000UL);
/// depths.AddEntry(0.0, 0x0000FFUL);
/// assert(depths.EntryValue(0) == 0.0 && depths.EntryColor(0) == 0x0000FFUL);
/// @endcode
class MARLIN_API ColorTable {
public:
    ColorTable() = default;
    ColorTable(const ColorTable&) = default;
    ColorTable(ColorTable&&) = default;
    ColorTable& operator=(const ColorTable&) = default;
    ColorTable& operator=(ColorTable&&) = default;
    virtual ~ColorTable();

    [[nodiscard]] int NumEntries() const noexcept { return static_cast<int>(m_Values.size()); }
    /// The index must lie in 0 to `NumEntries()` - 1.
    [[nodiscard]] double EntryValue(int index) const noexcept;
    [[nodiscard]] unsigned long EntryColor(int index) const noexcept;
    /// The color of values below the first entry.
    [[nodiscard]] unsigned long BelowColor() const noexcept { return m_BelowColor; }

    /// Inserts an entry after those of smaller or equal value. False, and the table unchanged,
    /// for a value that is not finite.
    bool AddEntry(double value, unsigned long color);
    void SetBelowColor(unsigned long color) noexcept { m_BelowColor = color; }
    void Clear() noexcept;

    /// Replaces the table by the section "ColorTable" of a file object: "Below" = color word,
    /// then "Entry(0)", "Entry(1)", ... = value,red,green,blue. Reading stops at the first
    /// missing number and sorts by value, equal values in their order; a missing "Below" takes
    /// the first entry's color. False, and the table empty, without the section or with an
    /// entry or "Below" that does not convert.
    bool FileOpen(const FileObject& file);
    /// Replaces that section, so that reading it gives the same values, colors (without their
    /// top bytes) and color below. False, and the file object unchanged, for a value that is
    /// not finite.
    bool FileSave(FileObject& file) const;

protected:
    // Parallel; a derived class that edits them keeps lengths equal and values ascending.
    std::vector<double> m_Values;
    std::vector<unsigned long> m_Colors;
    unsigned long m_BelowColor = 0;
};
