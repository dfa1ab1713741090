// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>
#include <marlin/keywords/keyword.h>

#include <deque>
#include <string>

class Section;

/// A table of the keywords that texts contain, such as %project name%, in the order in which they
/// came. The host gives them their values and puts these in the place of the keywords; the counts
/// say how many uses a keyword has.
///
/// Names are compared exactly. Additions merge by name: a name that the table has keeps its
/// keyword, whose count grows by the new one's (up to the largest `int`); only `Read` and the host
/// itself, through a pointer, can give two keywords one name, of which look-ups find the first.
/// Pointers to keywords stay good while keywords are added, not when any is removed. Operations
/// on whole tables and texts take time in proportion to their sizes, and take the table itself
/// as their argument too.
class MARLIN_API CKeywords {
public:
    CKeywords() = default;
    CKeywords(const CKeywords&) = default;
    CKeywords& operator=(const CKeywords&) = default;
    virtual ~CKeywords();

    /// Null for a name or a position that the table does not have. Looking for a name walks the
    /// table.
    [[nodiscard]] CKeyword* GetKeyword(const std::string& name) noexcept;
    [[nodiscard]] const CKeyword* GetKeywordConst(const std::string& name) const noexcept;
    [[nodiscard]] CKeyword* GetKeyword(int i) noexcept;
    [[nodiscard]] const CKeyword* GetKeywordConst(int i) const noexcept;
    [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_Keywords.size()); }

    /// Whether the name is one of `PredefinedKeywordKeys`, case and all.
    [[nodiscard]] static bool IsPredefinedKeyword(const std::string& name) noexcept;
    [[nodiscard]] static bool IsPredefinedPlotKeyword(const std::string& name) noexcept;

    /// Adds a copy at the end, or at the front, where the table has no keyword of that name. A
    /// null pointer adds nothing.
    void AddKeyword(const CKeyword* keyword);
    void AddKeywordToFront(const CKeyword* keyword);
    void AddKeywords(const CKeywords& other);
    /// Counts the keywords of a text. A name stands between two "%"; it holds at least one byte
    /// and no line feed, carriage return or null byte, each of which leaves a "%" before it
    /// without effect. A closing "%" opens no other name. A new keyword has its name as value.
    void AddKeywordsInString(const std::string& text);

    /// Takes the values of the keywords that both tables have.
    void SetValues(const CKeywords& other);
    void Clear() noexcept { m_Keywords.clear(); }
    void ClearRefCount() noexcept;
    /// Removes the first keyword of that name when it is not in use (its count is 0) or
    /// `evenInUse` says so.
    void RemoveKeyword(const std::string& name, bool evenInUse);
    /// Removes, in use or not, one keyword for each of the other table's that bears its name.
    void ExcludeKeywords(const CKeywords& other);
    /// Moves counts here: keywords of the other table whose name this one has add their count and
    /// leave the other table.
    void AddRefcountRemove(CKeywords& other);

    /// Equal sizes, and for each keyword one of that name and value in the other table. Order and
    /// counts do not matter.
    bool operator==(const CKeywords& other) const;

    /// Replaces the keywords by the keys of the section, comment lines and checksum included,
    /// with counts of 0; a success.
    ErrorString Read(const Section& section);
    /// Replaces the keys of the section by the names and values in their order; a success.
    ErrorString Write(Section& section) const;
    /// The checksum of the section that `Write` makes: it covers names, values and their order.
    [[nodiscard]] unsigned int GetChecksum() const;
    /// The names with a "%" between each two. A name that holds a "%" becomes more than one, one
    /// without a byte is lost when the text is read.
    [[nodiscard]] std::string ToString() const;
    /// Replaces the table by the names of such a text, without values; a name has as count the
    /// number of times that it stands there.
    void FromString(const std::string& text);

    /// Does nothing.
    void Dump() noexcept {}

private:
    std::deque<CKeyword> m_Keywords;
};
