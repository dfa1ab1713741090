// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/box_requests.h>

class CWnd;

inline constexpr UINT MF_STRING = 0x0000;
inline constexpr UINT MF_GRAYED = 0x0001;
inline constexpr UINT MF_SEPARATOR = 0x0800;
inline constexpr UINT TPM_RETURNCMD = 0x0100;

/// A menu that is shown once, at a place. Empty at first.
/// @code
/// CMenu menu;
/// menu.AppendMenu(MF_STRING, 100, "&Undo\tCtrl+Z");
/// menu.AppendMenu(MF_SEPARATOR);
/// menu.AppendMenu(MF_STRING | MF_GRAYED, 101, "&Redo");
/// @endcode
class MARLIN_API CMenu {
public:
    void AppendMenu(UINT flags, UINT id = 0, const char* text = nullptr);
    /// Shows the menu at a place on the screen and returns the number of the chosen item, 0 for
    /// none. The flags have to be `TPM_RETURNCMD`.
    [[nodiscard]] int TrackPopupMenu(UINT flags, int x, int y, CWnd* owner) const;

private:
    PLATFORM::MenuRequest m_Request;
};
