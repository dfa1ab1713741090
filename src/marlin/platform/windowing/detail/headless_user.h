// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_user.h>
#include <marlin/platform/windowing/headless_window_system.h>

namespace PLATFORM::detail {

/// The user of one running dialog of a headless window system.
class HeadlessUser final : public DialogUser {
public:
    HeadlessUser(HeadlessWindowSystem& system, HWND dialog) noexcept
        : m_System(system), m_Dialog(dialog) {}

    [[nodiscard]] HWND Dialog() const override { return m_Dialog; }
    bool Click(int control) override;
    bool Type(int edit, const CString& text) override;
    bool Spin(int spin, int steps) override;
    bool Choose(int combo, int item) override;
    bool SelectRows(int list, const std::vector<int>& rows) override;
    bool DoubleClick(int list, int row) override;
    bool RightClick(int list, int row) override;
    using DialogUser::Press;
    bool Press(int key, const HeldKeys& held) override;
    void Idle() override { DispatchWaiting(); }
    bool CloseFrame() override;

private:
    [[nodiscard]] bool IsOnTop() const noexcept { return m_System.IsOnTop(m_Dialog); }
    [[nodiscard]] HeadlessControl* Reach(int id) const;
    [[nodiscard]] HeadlessControl* Reach(int id, CONTROL kind) const;
    bool Push(const HeadlessControl& button);
    bool PushDefault();
    bool PressEnter(const HeadlessControl* focus);
    bool PressInList(HeadlessControl& list, int key, const HeldKeys& held);
    bool PressPlain(HeadlessControl* focus, int key);
    void SelectOnly(HeadlessControl& list, const std::vector<int>& rows);

    HeadlessWindowSystem& m_System;
    HWND m_Dialog;
};

}  // namespace PLATFORM::detail
