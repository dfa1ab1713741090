// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/headless_window_system.h>

#include <unordered_map>

namespace PLATFORM {

struct HeadlessColumn {
    CString Heading;
    int Width = 0;
};

struct HeadlessRow {
    std::vector<CString> Cells;
    int Image = -1;
    bool Selected = false;
};

struct HeadlessList {
    std::vector<HeadlessColumn> Columns;
    std::vector<HeadlessRow> Rows;
    CImageList Images;
    int Focused = -1;
    int Mark = -1;
    int InView = -1;

    [[nodiscard]] bool HasRow(int row) const noexcept {
        return row >= 0 && row < static_cast<int>(Rows.size());
    }
    [[nodiscard]] HeadlessRow& At(int row) noexcept { return Rows[static_cast<std::size_t>(row)]; }
};

/// A control, with the fields of every kind.
struct HeadlessControl {
    HWND Window = nullptr;
    HWND Dialog = nullptr;
    const ControlTemplate* Form = nullptr;
    HWND Buddy = nullptr;  ///< The edit of a spin.
    CString Text;
    bool Enabled = true;
    bool Checked = false;
    std::vector<CString> Items;
    int Current = -1;
    int Lower = 0;
    int Upper = 100;
    HeadlessList List;
    SIZE FaceSize;
    std::vector<COLORREF> Face;

    [[nodiscard]] bool Is(CONTROL kind) const noexcept { return Form->Kind == kind; }
    [[nodiscard]] bool IsButton() const noexcept {
        return Is(CONTROL::PUSH_BUTTON) || Is(CONTROL::DEFAULT_BUTTON) || Is(CONTROL::OWNER_BUTTON);
    }
};

struct HeadlessDialog {
    HWND Window = nullptr;
    CString Title;
    std::vector<HWND> Controls;
    HWND Focus = nullptr;
    bool HasEnded = false;
    int Result = 0;
};

struct HeadlessWindowSystem::State {
    std::unordered_map<HWND, HeadlessDialog> Dialogs;
    std::unordered_map<HWND, HeadlessControl> Controls;
    std::vector<HWND> Running;  ///< The last one is on top.
};

/// The user of one running dialog.
class HeadlessWindowSystem::User final : public DialogUser {
public:
    User(HeadlessWindowSystem& system, HWND dialog) noexcept : m_System(system), m_Dialog(dialog) {}

    [[nodiscard]] HWND Dialog() const override { return m_Dialog; }
    bool Click(int control) override;
    bool Type(int edit, const CString& text) override;
    bool Spin(int spin, int steps) override;
    bool Choose(int combo, int item) override;
    bool SelectRows(int list, const std::vector<int>& rows) override;
    bool DoubleClick(int list, int row) override;
    bool Press(int key) override;
    bool CloseFrame() override;

private:
    [[nodiscard]] bool IsOnTop() const noexcept;
    [[nodiscard]] HeadlessControl* Reach(int id) const;
    [[nodiscard]] HeadlessControl* Reach(int id, CONTROL kind) const;
    bool Push(HeadlessControl& button);
    bool PushDefault();
    bool PressEnter(HeadlessControl* focus);
    bool PressInList(HeadlessControl& list, int key);
    void SelectOnly(HeadlessControl& list, const std::vector<int>& rows);

    HeadlessWindowSystem& m_System;
    HWND m_Dialog;
};

}  // namespace PLATFORM
