// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_dc.h>

class CWnd;

/// The context of the inside of a window. It is one of the display, whatever the window.
class MARLIN_API CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* window);
};
