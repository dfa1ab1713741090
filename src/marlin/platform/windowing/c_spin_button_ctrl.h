// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

/// Two arrows that count the whole number in the edit before them up and down.
class MARLIN_API CSpinButtonCtrl : public CWnd {
public:
    CSpinButtonCtrl() noexcept = default;
    ~CSpinButtonCtrl() override;

    /// Both ends included.
    void SetRange(int lower, int upper);
};
