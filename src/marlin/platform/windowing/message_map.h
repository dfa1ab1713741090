// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/point.h>
#include <marlin/platform/windowing/message_records.h>
#include <marlin/platform/windowing/windowing_constants.h>

#include <variant>

class CWnd;

/// The handler of one message, a member of the class that the map belongs to.
struct AFX_MSGMAP_ENTRY {
    /// One of the kinds of functions that handle a message.
    using Handler = std::variant<void (CWnd::*)(), void (CWnd::*)(NMHDR*, LRESULT*),
                                 BOOL (CWnd::*)(HELPINFO*), void (CWnd::*)(CWnd*, CPoint)>;
    UINT nMessage;
    UINT nCode;
    int nID;
    bool bReflected;
    Handler pfn;
};

/// The handlers of a class. Messages without one here are looked up in the base's map.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
    int nEntries;
};

// Message maps are written with the framework's macros: DECLARE_MESSAGE_MAP in the class, BEGIN_
// and END_MESSAGE_MAP around the entries in its source.

#define DECLARE_MESSAGE_MAP()                                   \
protected:                                                      \
    [[nodiscard]] static const AFX_MSGMAP* GetThisMessageMap(); \
    [[nodiscard]] const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(ownClass, baseClass)                  \
    const AFX_MSGMAP* ownClass::GetMessageMap() const {         \
        return GetThisMessageMap();                             \
    }                                                           \
    const AFX_MSGMAP* ownClass::GetThisMessageMap() {           \
        using ThisClass [[maybe_unused]] = ownClass;            \
        constexpr auto baseMap = &baseClass::GetThisMessageMap; \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                                       \
    { 0, 0, 0, false, static_cast<void (CWnd::*)()>(nullptr) }                                  \
    }                                                                                           \
    ;                                                                                           \
    static const AFX_MSGMAP map = {baseMap, entries, static_cast<int>(std::size(entries)) - 1}; \
    return &map;                                                                                \
    }

// The forms of handlers: `void OnButton()`, `void OnNotify(NMHDR*, LRESULT*)`,
// `BOOL OnHelpInfo(HELPINFO*)`, `void OnContextMenu(CWnd*, CPoint)`. `ON_CONTROL_REFLECT` is for
// the class of the control itself.
#define ON_BN_CLICKED(id, handler) \
    {WM_COMMAND, BN_CLICKED, id, false, static_cast<void (CWnd::*)()>(&ThisClass::handler)},
#define ON_COMMAND(id, handler) ON_BN_CLICKED(id, handler)
#define ON_CONTROL_REFLECT(code, handler) \
    {WM_COMMAND, code, 0, true, static_cast<void (CWnd::*)()>(&ThisClass::handler)},
#define ON_NOTIFY(code, id, handler) \
    {WM_NOTIFY, code, id, false,     \
     static_cast<void (CWnd::*)(NMHDR*, LRESULT*)>(&ThisClass::handler)},
#define ON_WM_CONTEXTMENU()       \
    {WM_CONTEXTMENU, 0, 0, false, \
     static_cast<void (CWnd::*)(CWnd*, CPoint)>(&ThisClass::OnContextMenu)},
#define ON_WM_HELPINFO() \
    {WM_HELP, 0, 0, false, static_cast<BOOL (CWnd::*)(HELPINFO*)>(&ThisClass::OnHelpInfo)},
