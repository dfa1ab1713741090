// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/detail/headless_control.h>
#include <marlin/platform/windowing/detail/headless_user.h>
#include <marlin/platform/windowing/headless_window_system.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>

#include <unordered_map>

namespace PLATFORM {

using detail::HeadlessControl;
using detail::HeadlessDialog;

struct HeadlessWindowSystem::State {
    std::unordered_map<HWND, HeadlessDialog> Dialogs;
    std::unordered_map<HWND, HeadlessControl> Controls;
    std::vector<HWND> Running;  ///< The last one is on top.
};

HeadlessWindowSystem::HeadlessWindowSystem() : m_State(std::make_unique<State>()) {}

HeadlessWindowSystem::~HeadlessWindowSystem() = default;

HeadlessDialog* HeadlessWindowSystem::FindDialog(HWND dialog) const noexcept {
    const auto found = m_State->Dialogs.find(dialog);
    return found == m_State->Dialogs.end() ? nullptr : &found->second;
}

HeadlessControl* HeadlessWindowSystem::FindControl(HWND control) const noexcept {
    const auto found = m_State->Controls.find(control);
    return found == m_State->Controls.end() ? nullptr : &found->second;
}

HeadlessControl* HeadlessWindowSystem::FindControl(HWND control, CONTROL kind) const noexcept {
    HeadlessControl* const found = FindControl(control);
    return found && found->Is(kind) ? found : nullptr;
}

bool HeadlessWindowSystem::IsOnTop(HWND dialog) const noexcept {
    const HeadlessDialog* const found = FindDialog(dialog);
    return found && !found->HasEnded && m_State->Running.back() == dialog;
}

bool HeadlessWindowSystem::CreateDialog(HWND dialog, const DialogTemplate& form,
                                        std::span<const HWND> controls, HWND) {
    HeadlessDialog& made = m_State->Dialogs[dialog];
    made.Title = CString(form.Caption);
    made.Controls.assign(controls.begin(), controls.end());
    HWND before = nullptr;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        m_State->Controls.try_emplace(controls[i], controls[i], dialog, form.Controls[i], before);
        before = controls[i];
    }
    return true;
}

int HeadlessWindowSystem::RunDialog(HWND dialog) {
    // The map keeps the address while the script opens other dialogs.
    const HeadlessDialog* const shown = FindDialog(dialog);
    if (!shown) {
        return Failed;
    }
    if (shown->HasEnded) {
        return shown->Result;
    }
    for (const HWND control : shown->Controls) {
        Invalidate(control);
    }
    m_State->Running.push_back(dialog);
    if (const UserScript::DialogAct act = m_Script.NextAct()) {
        detail::HeadlessUser user(*this, dialog);
        DispatchWaiting();
        act(user);
        DispatchWaiting();
    }
    if (!shown->HasEnded) {
        SendClose(dialog);
    }
    // A dialog may refuse to close, but nobody is left who could close it.
    EndDialog(dialog, IDCANCEL);
    m_State->Running.pop_back();
    return shown->Result;
}

void HeadlessWindowSystem::EndDialog(HWND dialog, int result) {
    HeadlessDialog* const shown = FindDialog(dialog);
    if (shown && !shown->HasEnded) {
        shown->HasEnded = true;
        shown->Result = result;
    }
}

void HeadlessWindowSystem::DestroyDialog(HWND dialog) {
    if (const HeadlessDialog* const shown = FindDialog(dialog)) {
        for (const HWND control : shown->Controls) {
            m_State->Controls.erase(control);
        }
        m_State->Dialogs.erase(dialog);
    }
}

CString HeadlessWindowSystem::Text(HWND window) const {
    if (const HeadlessDialog* const dialog = FindDialog(window)) {
        return dialog->Title;
    }
    const HeadlessControl* const control = FindControl(window);
    return control ? control->Text : CString();
}

void HeadlessWindowSystem::SetText(HWND window, const CString& text) {
    if (HeadlessDialog* const dialog = FindDialog(window)) {
        dialog->Title = text;
    } else if (HeadlessControl* const control = FindControl(window)) {
        control->Text = text;
        control->Draw(ODA_DRAWENTIRE);
    }
}

bool HeadlessWindowSystem::IsEnabled(HWND window) const {
    const HeadlessControl* const control = FindControl(window);
    return control ? control->IsEnabled : FindDialog(window) != nullptr;
}

void HeadlessWindowSystem::Enable(HWND control, bool enable) {
    if (HeadlessControl* const found = FindControl(control)) {
        found->IsEnabled = enable;
    }
}

void HeadlessWindowSystem::SetFocus(HWND control) {
    const HeadlessControl* const found = FindControl(control);
    if (!found || !found->IsEnabled) {
        return;
    }
    HWND& focus = FindDialog(found->Dialog)->Focus;
    // Both buttons show whether they have the focus.
    const HeadlessControl* const before = FindControl(focus);
    focus = control;
    if (before && before != found) {
        before->Draw(ODA_FOCUS);
    }
    found->Draw(ODA_FOCUS);
}

HWND HeadlessWindowSystem::Focus(HWND dialog) const {
    const HeadlessDialog* const found = FindDialog(dialog);
    return found ? found->Focus : nullptr;
}

void HeadlessWindowSystem::Invalidate(HWND control) {
    if (const HeadlessControl* const found = FindControl(control)) {
        found->Draw(ODA_DRAWENTIRE);
    }
}

void HeadlessWindowSystem::Describe(HWND control, const CString& text) {
    if (HeadlessControl* const found = FindControl(control)) {
        found->Description = text;
    }
}

CString HeadlessWindowSystem::Description(HWND control) const {
    const HeadlessControl* const found = FindControl(control);
    return found ? found->Description : CString();
}

bool HeadlessWindowSystem::IsChecked(HWND box) const {
    const HeadlessControl* const found = FindControl(box);
    return found && found->IsChecked;
}

void HeadlessWindowSystem::SetChecked(HWND box, bool checked) {
    if (HeadlessControl* const found = FindControl(box)) {
        found->IsChecked = checked;
    }
}

void HeadlessWindowSystem::SetRange(HWND spin, const SpinRange& range) {
    if (HeadlessControl* const found = FindControl(spin)) {
        found->Range = range;
    }
}

DropDownList* HeadlessWindowSystem::FindDropDown(HWND window) const {
    HeadlessControl* const found = FindControl(window, CONTROL::DROP_DOWN_LIST);
    return found ? &found->Items : nullptr;
}

ReportList* HeadlessWindowSystem::FindList(HWND window) const {
    HeadlessControl* const found = FindControl(window, CONTROL::REPORT_LIST);
    return found ? &found->List : nullptr;
}

int HeadlessWindowSystem::ShowMessage(HWND, const MessageRequest& request) {
    return m_Script.NextMessage(request);
}

int HeadlessWindowSystem::ShowMenu(HWND, const MenuRequest& request) {
    return m_Script.NextMenu(request);
}

bool HeadlessWindowSystem::ChooseFile(HWND, const FileRequest& request, CString& path) {
    const std::optional<CString> chosen = m_Script.NextFile(request);
    path = chosen.value_or(path);
    return chosen.has_value();
}

bool HeadlessWindowSystem::ChooseColor(HWND, const ColorRequest& request, COLORREF& color) {
    const std::optional<COLORREF> chosen = m_Script.NextColor(request);
    color = chosen.value_or(color);
    return chosen.has_value();
}

COLORREF HeadlessWindowSystem::FacePixel(HWND button, int x, int y) const noexcept {
    const HeadlessControl* const found = FindControl(button);
    return found ? found->Face.GetPixel(x, y) : CLR_INVALID;
}

SIZE HeadlessWindowSystem::FaceSize(HWND button) const noexcept {
    const HeadlessControl* const found = FindControl(button);
    return found ? found->FaceSize() : SIZE();
}

COLORREF HeadlessWindowSystem::SwatchPixel(HWND list, int row, int x, int y) const noexcept {
    const HeadlessControl* const found = FindControl(list);
    return found && found->List.HasRow(row)
               ? found->List.ImagePixel(AskCell(list, row, 0).Image, x, y)
               : CLR_INVALID;
}

int HeadlessWindowSystem::RowInView(HWND list) const noexcept {
    const HeadlessControl* const found = FindControl(list);
    return found ? found->List.RowInView() : -1;
}

}  // namespace PLATFORM
