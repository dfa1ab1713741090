// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_user.h>
#include <marlin/qt/window_system.h>

/// A person before a dialog of Qt, who has a mouse and a keyboard.
class QtUser final : public PLATFORM::DialogUser {
public:
    QtUser(const PLATFORM::QtWindowSystem& windows, HWND dialog) noexcept
        : m_Windows(windows), m_Dialog(dialog) {}

    [[nodiscard]] HWND Dialog() const override { return m_Dialog; }
    bool Click(int control) override;
    bool Type(int edit, const CString& text) override;
    bool Spin(int spin, int steps) override;
    bool Choose(int combo, int item) override;
    bool SelectRows(int list, const std::vector<int>& rows) override;
    bool DoubleClick(int list, int row) override;
    bool RightClick(int list, int row) override;
    using DialogUser::Press;
    bool Press(int key, const PLATFORM::HeldKeys& held) override;
    void Idle() override;
    bool CloseFrame() override;

private:
    [[nodiscard]] bool IsOnTop() const;
    /// The widget of that kind if a person can get at it now.
    template <typename Kind>
    [[nodiscard]] Kind* Reach(int id) const;

    const PLATFORM::QtWindowSystem& m_Windows;
    HWND m_Dialog;
};
