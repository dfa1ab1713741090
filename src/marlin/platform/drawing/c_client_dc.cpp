// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_client_dc.h>

CClientDC::CClientDC(CWnd*) {
    CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
}
