// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

/// An object that is dragged from one window of a host to another: a kind, which has a meaning for
/// the host alone, and a text. Empty at first: `NO_OBJECT` without a text.
/// @code
/// const DropObject dragged(DropObject::OBJECT_2, "survey.cdf");
/// assert(dragged.ToString() == "2,survey.cdf");
/// DropObject dropped;
/// dropped.FromString(dragged.ToString());
/// assert(dropped.Type() == DropObject::OBJECT_2);
/// @endcode
class MARLIN_API DropObject {
public:
    /// The kinds, to which the host gives a meaning. Their numbers are part of the interface.
    enum TYPE : int {
        OBJECT_1 = 1,   ///< as the host says
        OBJECT_2 = 2,   ///< as the host says
        OBJECT_3 = 3,   ///< as the host says
        NO_OBJECT = 4,  ///< nothing is dragged
    };

    DropObject() = default;
    /// Any kind and any text are stored.
    DropObject(TYPE type, const CString& data) : m_Type(type), m_Data(data) {}

    /// One of the four, unless a host has stored another number.
    [[nodiscard]] TYPE Type() const noexcept { return m_Type; }
    /// Any text, commas included.
    [[nodiscard]] const CString& Data() const noexcept { return m_Data; }

    /// The number of the kind, a "," and the text.
    [[nodiscard]] CString ToString() const;
    /// Reads a number from 1 to 3 and the text after the first ",". A text without them makes the
    /// object empty, and so does an empty text after the ",".
    void FromString(const CString& text);

private:
    TYPE m_Type = NO_OBJECT;
    CString m_Data;
};
