// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

/// A drop-down list of texts.
class MARLIN_API CComboBox : public CWnd {
public:
    CComboBox() noexcept = default;
    ~CComboBox() override;

    /// -1 for none.
    [[nodiscard]] int GetCurSel() const;
    [[nodiscard]] int GetCount() const;
    void GetLBText(int item, CString& text) const;

    void SetCurSel(int item);
    /// Appends an item, or puts it in its place in a sorted list. Returns where it stands.
    int AddString(const char* text);
};
