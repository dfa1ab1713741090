// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/message_dispatch.h>

#include <span>

namespace PLATFORM::detail {

namespace {

bool Fits(const AFX_MSGMAP_ENTRY& entry, const Notice& notice) noexcept {
    return entry.nMessage == notice.Message && entry.nCode == notice.Code &&
           entry.bReflected == notice.IsReflected && (notice.IsReflected || entry.nID == notice.Id);
}

// One call for each form of handler.

void Call(CWnd& window, void (CWnd::*handler)(), const Notice&) {
    (window.*handler)();
}

void Call(CWnd& window, void (CWnd::*handler)(NMHDR*, LRESULT*), const Notice& notice) {
    (window.*handler)(static_cast<NMHDR*>(notice.Record), notice.Result);
}

void Call(CWnd& window, BOOL (CWnd::*handler)(HELPINFO*), const Notice& notice) {
    *notice.Result = (window.*handler)(static_cast<HELPINFO*>(notice.Record));
}

void Call(CWnd& window, void (CWnd::*handler)(CWnd*, CPoint), const Notice& notice) {
    (window.*handler)(CWnd::FromHandle(static_cast<HWND>(notice.Record)), notice.Place);
}

}  // namespace

bool CallHandler(CWnd& window, const AFX_MSGMAP* map, const Notice& notice) {
    while (map) {
        for (const auto& entry : std::span(map->lpEntries, static_cast<size_t>(map->nEntries))) {
            if (Fits(entry, notice)) {
                std::visit([&](auto handler) { Call(window, handler, notice); }, entry.pfn);
                return true;
            }
        }
        map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr;
    }
    return false;
}

}  // namespace PLATFORM::detail
