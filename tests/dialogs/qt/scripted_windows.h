// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/user_script.h>
#include <marlin/qt/window_system.h>

/// The windows of Qt with a script at their mouse and keyboard.
class ScriptedWindows final : public PLATFORM::QtWindowSystem {
public:
    [[nodiscard]] PLATFORM::UserScript& Script() noexcept { return m_Script; }

    int RunDialog(HWND dialog) override;
    int ShowMessage(HWND parent, const PLATFORM::MessageRequest& request) override;
    int ShowMenu(HWND parent, const PLATFORM::MenuRequest& request) override;
    bool ChooseFile(HWND parent, const PLATFORM::FileRequest& request, CString& path) override;
    bool ChooseColor(HWND parent, const PLATFORM::ColorRequest& request, COLORREF& color) override;

private:
    PLATFORM::UserScript m_Script;
};
