// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

#include <vector>

/// An ordered list of text items, split from a text at a separator character and joined with
/// it again, whose items can be set by position and read as numbers. Items are kept as they
/// came, blanks included; a set item that holds the separator stays one item of this list, but
/// its joined text splits into more. A value.
/// @code
/// CMarlinString items("2.5;blue", ';');
/// float width = 0.0F;
/// bool isRead = items.GetItem(0, width);
/// assert(isRead && width == 2.5F);
/// isRead = items.GetItem(1, width);
/// assert(!isRead && width == 2.5F);
/// items.Set(3, "new");
/// assert(items.String() == "2.5;blue;;new");
/// @endcode
class MARLIN_API CMarlinString {
public:
    /// A list without items.
    explicit CMarlinString(char separator) noexcept : m_Separator(separator) {}
    /// The items of a text: one more than it holds separators, none for an empty text.
    /// Without `keepEmpty` items of no length are left out.
    CMarlinString(const CString& text, char separator, bool keepEmpty = true);

    [[nodiscard]] int Size() const noexcept { return static_cast<int>(m_Items.size()); }
    /// The index must lie in 0 to `Size()` - 1.
    [[nodiscard]] const CString& operator[](int index) const noexcept;
    /// The items with a separator between each two.
    [[nodiscard]] CString String() const;

    /// Reads the item at the index, which may be any number. False, and the target unchanged, when
    /// there is no such item, or when it is not, but for blanks at its ends, a value of the type.
    /// A text takes any item, a bool 0 and 1, an `unsigned long` any 32-bit word.
    bool GetItem(int index, CString& value) const;
    bool GetItem(int index, int& value) const noexcept;
    bool GetItem(int index, unsigned long& value) const noexcept;
    bool GetItem(int index, float& value) const noexcept;
    bool GetItem(int index, bool& value) const noexcept;

    /// Changes what `String` joins with; the items stay.
    void SetSeparator(char separator) noexcept { m_Separator = separator; }
    /// Replaces the item at the index, which must not be negative. Beyond the end the list
    /// grows to hold it, with empty items in between. A null pointer is an empty text.
    void Set(int index, const char* item);
    void SetItem(int index, const CString& item);

private:
    [[nodiscard]] const CString* Find(int index) const noexcept;
    template <class T>
    bool GetNumber(int index, T& value) const noexcept;

    std::vector<CString> m_Items;
    char m_Separator;
};
