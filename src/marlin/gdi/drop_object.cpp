// SPDX-License-Identifier: MIT
#include <marlin/base/text_functions.h>
#include <marlin/gdi/drop_object.h>

CString DropObject::ToString() const {
    CString text;
    text << static_cast<int>(m_Type);
    return text + ',' + m_Data;
}

void DropObject::FromString(const CString& text) {
    DropObject read;
    const int type = atoi(std::string(text.View()));
    const int comma = text.Find(',');
    // The text may have commas of its own; the first one ends the number.
    if (type >= OBJECT_1 && type <= OBJECT_3 && comma >= 0 && comma + 1 < text.GetLength()) {
        read = DropObject(static_cast<TYPE>(type), text.Mid(comma + 1));
    }
    *this = read;  // only now: the text may be this object's own
}
