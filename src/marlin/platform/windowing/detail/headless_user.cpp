// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/headless_control.h>
#include <marlin/platform/windowing/detail/headless_user.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>

#include <algorithm>

namespace PLATFORM::detail {

// The control, or null where a person cannot get at it now.
HeadlessControl* HeadlessUser::Reach(int id) const {
    if (!IsOnTop()) {
        return nullptr;
    }
    for (const HWND window : m_System.FindDialog(m_Dialog)->Controls) {
        HeadlessControl* const control = m_System.FindControl(window);
        if (control->Form.Id == id && control->IsEnabled) {
            return control;
        }
    }
    return nullptr;
}

HeadlessControl* HeadlessUser::Reach(int id, CONTROL kind) const {
    HeadlessControl* const control = Reach(id);
    return control && control->Is(kind) ? control : nullptr;
}

bool HeadlessUser::Push(const HeadlessControl& button) {
    m_System.SetFocus(button.Window);
    SendCommand(button.Window, BN_CLICKED);
    return true;
}

bool HeadlessUser::Click(int control) {
    HeadlessControl* const found = Reach(control);
    if (!found) {
        return false;
    }
    if (found->Is(CONTROL::CHECK_BOX)) {
        found->IsChecked = !found->IsChecked;
        return Push(*found);
    }
    return found->IsButton() && Push(*found);
}

bool HeadlessUser::Type(int edit, const CString& text) {
    if (HeadlessControl* const list = Reach(edit, CONTROL::REPORT_LIST)) {
        const int row = list->List.TakeEditedRow();
        if (row >= 0) {
            SendLabel(list->Window, row, text);
        }
        return row >= 0;
    }
    HeadlessControl* const found = Reach(edit, CONTROL::EDIT);
    if (found) {
        m_System.SetFocus(found->Window);
        found->Text = text;
    }
    return found != nullptr;
}

bool HeadlessUser::Spin(int spin, int steps) {
    const HeadlessControl* const found = Reach(spin, CONTROL::SPIN);
    HeadlessControl* const edit = found ? m_System.FindControl(found->Before) : nullptr;
    if (edit) {
        edit->Text = found->Range.Step(edit->Text, steps);
    }
    return edit != nullptr;
}

bool HeadlessUser::Choose(int combo, int item) {
    HeadlessControl* const found = Reach(combo, CONTROL::DROP_DOWN_LIST);
    if (!found || !found->Items.HasItem(item)) {
        return false;
    }
    m_System.SetFocus(found->Window);
    found->Items.SetCurrentItem(item);
    return true;
}

void HeadlessUser::SelectOnly(HeadlessControl& list, const std::vector<int>& rows) {
    list.List.SelectOnly(rows);
    m_System.SetFocus(list.Window);
    SendNotice(list.Window, LVN_ITEMCHANGED);
}

bool HeadlessUser::SelectRows(int list, const std::vector<int>& rows) {
    HeadlessControl* const found = Reach(list, CONTROL::REPORT_LIST);
    const auto isThere = [&](int row) { return found->List.HasRow(row); };
    if (!found || !std::ranges::all_of(rows, isThere)) {
        return false;
    }
    SelectOnly(*found, rows);
    SendNotice(found->Window, NM_CLICK);
    return true;
}

bool HeadlessUser::DoubleClick(int list, int row) {
    if (!SelectRows(list, {row})) {
        return false;
    }
    // The click may have ended the dialog or disabled the list.
    if (const HeadlessControl* const found = Reach(list)) {
        SendNotice(found->Window, NM_DBLCLK);
    }
    return true;
}

bool HeadlessUser::PushDefault() {
    for (const HWND window : m_System.FindDialog(m_Dialog)->Controls) {
        const HeadlessControl* const control = m_System.FindControl(window);
        if (control->Is(CONTROL::DEFAULT_BUTTON) && control->IsEnabled) {
            return Push(*control);
        }
    }
    return false;
}

bool HeadlessUser::PressEnter(const HeadlessControl* focus) {
    // A dialog may use Enter in a list; where it does not, Enter confirms it.
    if (focus && focus->Is(CONTROL::REPORT_LIST) && SendKey(focus->Window, VK_RETURN)) {
        return true;
    }
    // It does so also while an owner-drawn button has the focus; the others click themselves.
    const bool clicksItself =
        focus && focus->IsEnabled && focus->IsButton() && !focus->Is(CONTROL::OWNER_BUTTON);
    return clicksItself ? Push(*focus) : PushDefault();
}

bool HeadlessUser::RightClick(int list, int row) {
    HeadlessControl* const found = Reach(list, CONTROL::REPORT_LIST);
    if (!found || (row >= 0 && !found->List.HasRow(row))) {
        return false;
    }
    if (row < 0) {
        SelectOnly(*found, {});
    } else if (!found->List.IsSelected(row)) {
        SelectOnly(*found, {row});
    }
    SendContextMenu(found->Window, {});
    return true;
}

// The arrow keys, and with a key that the list has no use for, the dialog.
bool HeadlessUser::PressInList(HeadlessControl& list, int key, const HeldKeys& held) {
    const int step = key == VK_UP ? -1 : key == VK_DOWN ? 1 : 0;
    if (step == 0) {
        return !held.Shift && !held.Control && SendKey(list.Window, key);
    }
    const int row = list.List.FocusedRow() < 0 ? 0 : list.List.FocusedRow() + step;
    if (list.List.HasRow(row) && held.Shift) {
        list.List.SelectUpTo(row);
        SendNotice(list.Window, LVN_ITEMCHANGED);
    } else if (list.List.HasRow(row)) {
        SelectOnly(list, {row});
    }
    return true;
}

bool HeadlessUser::PressPlain(HeadlessControl* focus, int key) {
    switch (key) {
        case VK_F1:
            SendHelp(m_Dialog);
            return true;
        case VK_ESCAPE:
            return CloseFrame();
        case VK_RETURN:
            return PressEnter(focus);
        default:
            return false;
    }
}

bool HeadlessUser::Press(int key, const HeldKeys& held) {
    if (!IsOnTop()) {
        return false;
    }
    HeadlessControl* const focus = m_System.FindControl(m_System.Focus(m_Dialog));
    if (focus && SendKeyDown(focus->Window, key, held)) {
        return true;
    }
    const bool isInList = focus && focus->Is(CONTROL::REPORT_LIST);
    if (isInList && focus->List.TakeEditedRow() >= 0 && key == VK_ESCAPE) {
        return true;  // gives up the typing alone
    }
    if (isInList && key != VK_RETURN && PressInList(*focus, key, held)) {
        return true;
    }
    return !held.Shift && !held.Control ? PressPlain(focus, key) || isInList : focus != nullptr;
}

bool HeadlessUser::CloseFrame() {
    if (!IsOnTop()) {
        return false;
    }
    SendClose(m_Dialog);
    return true;
}

}  // namespace PLATFORM::detail
