// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

class ColorTable;
class IniFile;
class Section;

/// The contours to draw, one definition a level. `Add` and `Set` keep them in ascending order of
/// level, no level twice; `Load` and `Generate` take them in the order of their source, and
/// look-ups are right only if that was ascending. Levels are compared exactly, but files hold
/// six decimals: levels nearer to each other than that cannot be saved. Made empty.
/// A value.
///
/// @code
/// ContourDefinitionList contours;
/// const bool isValid = contours.Generate(0.0, 10.0, 2.5);
/// const int added = contours.Add({.Level = 6.0, .Color = 0xFF0000});
/// assert(isValid && added == 3 && contours.NumContours() == 6);
/// assert(contours.Find(6.0) == 3 && contours.Find(6.1) == -1);
/// @endcode
class MARLIN_API ContourDefinitionList {
public:
    /// One contour: its level, and how it is drawn and labelled.
    struct ContourDefInfo {
        float LineWidth = 0.0F;
        int LineType = 0;         ///< Index into `LINESTYLES`.
        double Level = 0.0;       ///< The depth of the contour.
        unsigned long Color = 0;  ///< Color word.
        bool Annotate = false;    ///< Whether it carries labels.

        /// Takes the values of the section. Keys that are missing or unreadable keep their
        /// fields, but the line type becomes continuous, and the color black when the section
        /// has neither an exact color nor one of the palette. True.
        bool Read(const Section& section);
        /// The same for one of a file's sections, taken in the order of their numbers. A section
        /// without the key "Color" has the palette index of the one before it; the first
        /// is given 0.
        bool Read(const Section& section, int& paletteIndex);
        /// Sets six keys, in the place of keys of those names. A line type that is none of the
        /// three is written as continuous. True.
        bool Write(Section& section) const;

        bool operator==(const ContourDefInfo& other) const noexcept = default;
    };

    /// The line types as files name them: continuous, dashed, dotted.
    static const std::string LINESTYLES[3];

    /// The most levels that are generated from a range.
    static constexpr int MaxGeneratedLevels = 10'000'000;

    /// The name of the section that holds definition `number` of a file, counted from 0:
    /// "Contour(0)".
    [[nodiscard]] static std::string SectionName(int number);

    ContourDefinitionList() = default;
    ContourDefinitionList(const ContourDefinitionList&) = default;
    /// Leaves the other list empty.
    ContourDefinitionList(ContourDefinitionList&& other) noexcept { Swap(other); }
    ContourDefinitionList& operator=(ContourDefinitionList other) noexcept {
        Swap(other);
        return *this;
    }
    ~ContourDefinitionList() = default;

    [[nodiscard]] int NumContours() const noexcept {
        return static_cast<int>(m_Storage.size() - m_First);
    }
    /// The index must lie in 0 to `NumContours()` - 1.
    [[nodiscard]] const ContourDefInfo& operator[](int index) const noexcept;
    /// The index of the definition of exactly that level, or -1.
    [[nodiscard]] int Find(const ContourDefInfo& def) const noexcept { return Find(def.Level); }
    [[nodiscard]] int Find(double level) const noexcept;

    /// Puts it in its place and returns its index; -1, and nothing changed, when its level is
    /// there already or is not a number.
    int Add(const ContourDefInfo& def);
    /// Replaces a definition and returns the index of the new one, which may have moved. -1, and
    /// nothing changed, for an index outside the list and for a level that is not a number. -1
    /// too when another definition has the level: the one at the index is then gone.
    int Set(int index, const ContourDefInfo& def);
    /// False, and nothing changed, for an index outside the list.
    bool Remove(int index);
    /// Puts definitions in the place of `count` others from `index` on, in the order given and
    /// whatever their levels. All that is replaced must be in the list.
    void Replace(int index, int count, std::span<const ContourDefInfo> definitions);

    /// Replaces the list by black, unlabelled contours at the multiples of the interval from
    /// `lowest` to `highest`, both included, built by repeated addition from the first. True,
    /// with an empty list if none lies there. False, and the list empty, unless lowest < highest,
    /// both finite, and interval > 0; also when the interval is too small to move a level and
    /// for more than `MaxGeneratedLevels` levels.
    bool Generate(double lowest, double highest, double interval);
    /// Replaces the list by one contour for each entry of a color table. `invert` takes 255 from
    /// which the whole 32-bit color word is subtracted, modulo 2^32. False, and the list empty,
    /// for a table without entries.
    bool Generate(const ColorTable& table, bool invert);

    /// Replaces the list by the definitions of a contour definition file, provided that it reads
    /// all that the file holds. Otherwise says why not, and the list is unchanged: the file cannot
    /// be read, or it lacks a section [Contour(n)] of those from 0 to the highest.
    ErrorString Open(const std::string& path);
    /// The same from the sections of a file, whose name is not in the message.
    ErrorString Open(const IniFile& file);

    /// Appends the definitions of a contour definition file (docs/formats/
    /// contour_definitions.md), in the order of their numbers and whatever their levels. False,
    /// and the list unchanged, when the file cannot be read or holds no section; otherwise
    /// whether the list is not empty then.
    bool Load(const char* path);
    /// Writes a contour definition file, replacing an old one whole. False, and an old file
    /// unchanged, for an empty list or path, when the file cannot be written, and for what it
    /// cannot hold: a level or width that is not finite, and two levels that differ but are one
    /// with six decimals. `ErrorString::LastError()` has the cause of the last three.
    bool Save(const char* path) const;

private:
    [[nodiscard]] bool HoldsIndex(int index) const noexcept {
        return index >= 0 && index < NumContours();
    }
    void Swap(ContourDefinitionList& other) noexcept;
    [[nodiscard]] std::vector<ContourDefInfo>::const_iterator Begin() const noexcept {
        return m_Storage.begin() + static_cast<std::ptrdiff_t>(m_First);
    }
    [[nodiscard]] int LowerBound(double level) const noexcept;
    void Insert(int index, const ContourDefInfo& def);
    void NoteOrder() noexcept;

    // The definitions begin at m_First. The room before them lets an insertion move the shorter
    // side alone: additions at random take 0.6 times as long as in a flat map, of which 1.0 is
    // the limit. All in a plain vector they took 0.9 to 1.2 times as long, in a deque 2.5 times.
    std::vector<ContourDefInfo> m_Storage;
    std::size_t m_First = 0;
    bool m_IsAscending = true;  // levels of `Load` may not be
};
