// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>
#include <marlin/keywords/keyword.h>

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

class Section;

/// A table of the keywords that texts contain, such as %project name%, in the order in which they
/// came. The host gives them their values and draws these in place of the keywords; the counts
/// say how many uses a keyword has.
///
/// Names are compared exactly. Additions merge by name: a name that the table has keeps its
/// keyword, whose count grows by the new one's (up to the largest `int`). Only `Read` and the host
/// itself, through a pointer, can give two keywords one name, of which look-ups find the first.
/// Pointers to keywords stay good while keywords are added, not when any is removed. A table may
/// be the argument of its own operations.
///
/// @code
/// CKeywords keywords;
/// keywords.AddKeywordsInString("%project name% on %current date%, %project name%");
/// keywords.GetKeyword("project name")->m_Value = "North basin";
/// assert(keywords.GetSize() == 2);
/// assert(keywords.GetKeyword(0)->m_RefCount == 2);
/// @endcode
class MARLIN_API CKeywords {
public:
    CKeywords() = default;
    CKeywords(const CKeywords& other) : m_Keywords(other.m_Keywords) {}
    CKeywords(CKeywords&& other) noexcept { Swap(other); }
    CKeywords& operator=(CKeywords other) noexcept {
        Swap(other);
        return *this;
    }
    virtual ~CKeywords();

    /// Null for a name or a position that the table does not have. The host may change a keyword
    /// through the pointer, its name too; from then on each operation that goes by name takes time
    /// in proportion to the table, which it does not for a table that lent no such pointer.
    [[nodiscard]] CKeyword* GetKeyword(const std::string& name) noexcept;
    [[nodiscard]] const CKeyword* GetKeywordConst(const std::string& name) const noexcept;
    [[nodiscard]] CKeyword* GetKeyword(int i) noexcept;
    [[nodiscard]] const CKeyword* GetKeywordConst(int i) const noexcept;
    [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_Keywords.size()); }

    /// True for the names in `PredefinedKeywordKeys`, case and all.
    [[nodiscard]] static bool IsPredefinedKeyword(const std::string& name) noexcept;
    [[nodiscard]] static bool IsPredefinedPlotKeyword(const std::string& name) noexcept;

    /// Adds a copy at the end, or at the front, where the table has no keyword of that name. A
    /// null pointer adds nothing.
    void AddKeyword(const CKeyword* keyword);
    void AddKeywordToFront(const CKeyword* keyword);
    void AddKeywords(const CKeywords& other);
    /// Counts the keywords of a text. A name lies between two "%" and holds at least one byte; a
    /// line feed, carriage return or null byte cancels the "%" before it. A closing "%" opens no
    /// other name. A new keyword has its name as value.
    void AddKeywordsInString(const std::string& text);

    /// Takes the values of the keywords that both tables have.
    void SetValues(const CKeywords& other);
    void Clear() noexcept;
    void ClearRefCount() noexcept;
    /// Removes the first keyword of that name when it is not in use (its count is 0) or
    /// `evenInUse` says so.
    void RemoveKeyword(const std::string& name, bool evenInUse);
    /// Removes one keyword, in use or not, for each keyword of that name in the other table.
    void ExcludeKeywords(const CKeywords& other);
    /// Moves counts here: a keyword of the other table whose name this one has adds its count and
    /// leaves the other table.
    void AddRefcountRemove(CKeywords& other);

    /// Equal sizes, and for each keyword one of that name and value in the other table. Order and
    /// counts do not matter.
    bool operator==(const CKeywords& other) const;

    /// Replaces the keywords by the keys of the section, comment lines and checksum included,
    /// with counts of 0; a success.
    ErrorString Read(const Section& section);
    /// Replaces the keys of the section by the names and values in their order; a success.
    ErrorString Write(Section& section) const;
    /// The checksum of the section that `Write` makes: names and values in their order.
    [[nodiscard]] unsigned int GetChecksum() const;
    /// The names with a "%" between each two. A name that holds a "%" becomes more than one, one
    /// without a byte is lost when the text is read.
    [[nodiscard]] std::string ToString() const;
    /// Replaces the table by the names of such a text, without values; each name is counted.
    void FromString(const std::string& text);

    /// Does nothing.
    void Dump() noexcept {}

private:
    void Swap(CKeywords& other) noexcept;
    [[nodiscard]] CKeyword* Find(std::string_view name) const noexcept;
    void Index(std::size_t more = 0);
    void AddOne(const CKeyword* keyword, bool atFront);
    /// False when there is no keyword of that name.
    bool CountKnown(std::string_view name, int count) noexcept;
    void AddNew(const CKeyword& keyword, bool atFront = false);
    void Merge(const CKeyword& keyword, bool atFront = false);

    std::deque<CKeyword> m_Keywords;  // whose elements stay in place while its ends grow
    // The first keyword of each name, which the keyword itself holds. A host that was lent a
    // pointer may change a name at any time, so the index then lasts for one operation.
    std::unordered_map<std::string_view, CKeyword*> m_Index;
    bool m_IsIndexed = false;
    bool m_IsLent = false;
};
