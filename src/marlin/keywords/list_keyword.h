// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

/// A keyword whose value is one of a list of choices: its name and the choices, in the order in
/// which they were added, each of them once. Texts are compared exactly. By default without a
/// name and without choices.
class MARLIN_API CListKeyword {
public:
    CListKeyword() = default;
    CListKeyword(const CListKeyword&) = default;
    CListKeyword(CListKeyword&&) = default;
    CListKeyword& operator=(const CListKeyword&) = default;
    CListKeyword& operator=(CListKeyword&&) = default;
    virtual ~CListKeyword();

    [[nodiscard]] std::string GetName() const { return m_Name; }
    [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_Values.size()); }
    /// An empty text for a position outside 0 to `GetSize()` - 1.
    [[nodiscard]] std::string GetValue(int i) const;

    void SetName(const std::string& name) { m_Name = name; }
    /// Appends a choice that is not in the list yet, also an empty one.
    void AddValue(const std::string& value);
    /// Removes the choices; the name stays.
    void Clear() noexcept;

private:
    std::string m_Name;
    std::vector<std::string> m_Values;
    // The positions of the values by their hashes, so that long lists grow quickly.
    std::unordered_multimap<std::size_t, std::size_t> m_Positions;
};
