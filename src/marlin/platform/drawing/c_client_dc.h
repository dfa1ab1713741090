// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_dc.h>

class CWnd;

/// The context of a window's inside: one of the display, for every window and for none.
class MARLIN_API CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* window);
};
