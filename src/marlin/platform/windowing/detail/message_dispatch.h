// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/message_map.h>

namespace PLATFORM::detail {

/// The parts of a message that select an entry of a message map, and the arguments of its handler.
struct Notice {
    UINT Message = 0;
    UINT Code = 0;
    int Id = 0;
    bool IsReflected = false;  ///< For the control itself rather than for its dialog.
    void* Record = nullptr;
    CPoint Place;
    LRESULT* Result = nullptr;
};

/// Calls the first handler that fits, of the map or else of its bases. False for none.
bool CallHandler(CWnd& window, const AFX_MSGMAP* map, const Notice& notice);

}  // namespace PLATFORM::detail
