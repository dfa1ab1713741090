// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

/// Two arrows that count the whole number in the edit before them up and down, from 0 to 100
/// unless another range is set.
class MARLIN_API CSpinButtonCtrl : public CWnd {
public:
    /// Both ends included.
    void SetRange(int lower, int upper);
};
