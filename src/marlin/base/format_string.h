// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>
#include <string_view>
#include <vector>

/// An ordered list of text items, split from a text at a separator character and joined with
/// it again. Items are kept as they came, blanks included; an appended item that holds the
/// separator stays one item of this list, but its joined text splits into more. A value.
/// @code
/// FormatString items("a,,b", ',');
/// assert(items.Size() == 3 && items[1].empty());
/// items += "c";
/// assert(items.String() == "a,,b,c" && items.HasSubString("b"));
/// @endcode
class MARLIN_API FormatString {
public:
    /// A list without items.
    explicit FormatString(char separator) noexcept : m_Separator(separator) {}
    /// The items of a text: one more than it holds separators, none for an empty text.
    FormatString(const std::string& text, char separator);

    [[nodiscard]] int Size() const noexcept { return static_cast<int>(m_Items.size()); }
    /// The index must lie in 0 to `Size()` - 1.
    [[nodiscard]] const std::string& operator[](int index) const noexcept;
    /// True when an item equals the text, byte for byte.
    [[nodiscard]] bool HasSubString(const std::string& text) const noexcept;
    /// The items with a separator between each two; splitting it gives the same items, except
    /// that a list of one empty item becomes one without items.
    [[nodiscard]] std::string String() const;

    /// Appends one item.
    FormatString& operator+=(const std::string& item);

private:
    std::vector<std::string> m_Items;
    char m_Separator;
};
