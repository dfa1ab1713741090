// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

/// A push button.
class MARLIN_API CButton : public CWnd {
public:
    /// Called to draw a button whose template makes it owner-drawn; the default draws nothing.
    virtual void DrawItem(DRAWITEMSTRUCT* draw);

protected:
    bool OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
