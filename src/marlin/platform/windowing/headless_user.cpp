// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/headless_state.h>
#include <marlin/platform/windowing/window_messages.h>

#include <algorithm>

namespace PLATFORM {

bool HeadlessWindowSystem::User::IsOnTop() const noexcept {
    const auto& running = m_System.m_State->Running;
    const HeadlessDialog* const dialog = m_System.FindDialog(m_Dialog);
    return dialog && !dialog->HasEnded && running.back() == m_Dialog;
}

// The control if a person can get at it now.
HeadlessControl* HeadlessWindowSystem::User::Reach(int id) const {
    if (!IsOnTop()) {
        return nullptr;
    }
    for (const HWND window : m_System.FindDialog(m_Dialog)->Controls) {
        HeadlessControl* const control = m_System.FindControl(window);
        if (control->Form->Id == id && control->Enabled) {
            return control;
        }
    }
    return nullptr;
}

HeadlessControl* HeadlessWindowSystem::User::Reach(int id, CONTROL kind) const {
    HeadlessControl* const control = Reach(id);
    return control && control->Is(kind) ? control : nullptr;
}

bool HeadlessWindowSystem::User::Push(HeadlessControl& button) {
    m_System.SetFocus(button.Window);
    DeliverCommand(button.Window, BN_CLICKED);
    return true;
}

bool HeadlessWindowSystem::User::Click(int control) {
    HeadlessControl* const found = Reach(control);
    if (!found) {
        return false;
    }
    if (found->Is(CONTROL::CHECK_BOX)) {
        found->Checked = !found->Checked;
        return Push(*found);
    }
    return found->IsButton() && Push(*found);
}

bool HeadlessWindowSystem::User::Type(int edit, const CString& text) {
    HeadlessControl* const found = Reach(edit, CONTROL::EDIT);
    if (found) {
        m_System.SetFocus(found->Window);
        found->Text = text;
    }
    return found != nullptr;
}

bool HeadlessWindowSystem::User::Spin(int spin, int steps) {
    HeadlessControl* const found = Reach(spin, CONTROL::SPIN);
    HeadlessControl* const edit = found ? m_System.FindControl(found->Buddy) : nullptr;
    if (edit) {
        edit->Text = Spun(edit->Text, steps, found->Lower, found->Upper);
    }
    return edit != nullptr;
}

bool HeadlessWindowSystem::User::Choose(int combo, int item) {
    HeadlessControl* const found = Reach(combo, CONTROL::DROP_DOWN_LIST);
    if (!found || item < 0 || item >= static_cast<int>(found->Items.size())) {
        return false;
    }
    m_System.SetFocus(found->Window);
    found->Current = item;
    return true;
}

void HeadlessWindowSystem::User::SelectOnly(HeadlessControl& list, const std::vector<int>& rows) {
    for (HeadlessRow& row : list.List.Rows) {
        row.Selected = false;
    }
    for (const int row : rows) {
        list.List.At(row).Selected = true;
    }
    if (!rows.empty()) {
        list.List.Mark = list.List.Focused = rows.back();
    }
    m_System.SetFocus(list.Window);
    DeliverNotice(list.Window, LVN_ITEMCHANGED);
}

bool HeadlessWindowSystem::User::SelectRows(int list, const std::vector<int>& rows) {
    HeadlessControl* const found = Reach(list, CONTROL::REPORT_LIST);
    const auto isThere = [&](int row) { return found->List.HasRow(row); };
    if (!found || !std::ranges::all_of(rows, isThere)) {
        return false;
    }
    SelectOnly(*found, rows);
    DeliverNotice(found->Window, NM_CLICK);
    return true;
}

bool HeadlessWindowSystem::User::DoubleClick(int list, int row) {
    if (!SelectRows(list, {row})) {
        return false;
    }
    DeliverNotice(Reach(list)->Window, NM_DBLCLK);
    return true;
}

bool HeadlessWindowSystem::User::PushDefault() {
    for (const HWND window : m_System.FindDialog(m_Dialog)->Controls) {
        HeadlessControl* const control = m_System.FindControl(window);
        if (control->Is(CONTROL::DEFAULT_BUTTON) && control->Enabled) {
            return Push(*control);
        }
    }
    return false;
}

bool HeadlessWindowSystem::User::PressEnter(HeadlessControl* focus) {
    if (focus && focus->Is(CONTROL::REPORT_LIST) && DeliverKey(focus->Window, VK_RETURN)) {
        return true;
    }
    return focus && focus->IsButton() && focus->Enabled ? Push(*focus) : PushDefault();
}

bool HeadlessWindowSystem::User::PressInList(HeadlessControl& list, int key) {
    const int step = key == VK_UP ? -1 : key == VK_DOWN ? 1 : 0;
    if (step == 0) {
        DeliverKey(list.Window, key);
    } else if (list.List.HasRow(list.List.Focused + step)) {
        SelectOnly(list, {list.List.Focused + step});
    }
    return true;
}

bool HeadlessWindowSystem::User::Press(int key) {
    if (!IsOnTop()) {
        return false;
    }
    HeadlessControl* const focus = m_System.FindControl(m_System.Focus(m_Dialog));
    switch (key) {
        case VK_F1:
            DeliverHelp(m_Dialog);
            return true;
        case VK_ESCAPE:
            return CloseFrame();
        case VK_RETURN:
            return PressEnter(focus);
        default:
            return focus && focus->Is(CONTROL::REPORT_LIST) && PressInList(*focus, key);
    }
}

bool HeadlessWindowSystem::User::CloseFrame() {
    if (!IsOnTop()) {
        return false;
    }
    Deliver(m_Dialog, WM_CLOSE, 0, 0);
    return true;
}

}  // namespace PLATFORM
