// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

/// A drop-down list of texts.
class MARLIN_API CComboBox : public CWnd {
public:
    [[nodiscard]] int GetCount() const;
    /// An empty text for an index that is not there.
    void GetLBText(int item, CString& text) const;
    /// Appends an item, or inserts it in its place in a sorted list. Returns its index.
    int AddString(const char* text);
};
