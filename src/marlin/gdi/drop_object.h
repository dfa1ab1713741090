// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

/// What is dragged from one window of the host to another: a kind, whose meaning is the host's,
/// and a text. Empty at first: `NO_OBJECT` without a text.
class MARLIN_API DropObject {
public:
    enum TYPE : int {
        OBJECT_1 = 1,
        OBJECT_2 = 2,
        OBJECT_3 = 3,
        NO_OBJECT = 4,
    };

    DropObject() = default;
    /// Both are stored unchecked.
    DropObject(TYPE type, const CString& data) : m_Type(type), m_Data(data) {}

    [[nodiscard]] TYPE Type() const noexcept { return m_Type; }
    [[nodiscard]] const CString& Data() const noexcept { return m_Data; }

    /// The kind as a number, a "," and the text.
    [[nodiscard]] CString ToString() const;
    /// Takes the leading number, 1 to 3, and what follows the first ",". Any other text, also
    /// one whose only "," ends it, makes the object empty.
    void FromString(const CString& text);

private:
    TYPE m_Type = NO_OBJECT;
    CString m_Data;
};
