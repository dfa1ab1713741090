// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/windowing/detail/headless_state.h>
#include <marlin/platform/windowing/window_messages.h>

namespace PLATFORM {

namespace {

// The dialog font's average character is 6 by 13 pixels, which are 4 by 8 dialog units.
constexpr SIZE FaceSizeOf(const ControlTemplate& form) noexcept {
    return {form.Width * 6 / 4, form.Height * 13 / 8};
}

HeadlessControl MakeControl(HWND dialog, HWND window, const ControlTemplate& form) {
    HeadlessControl control;
    control.Window = window;
    control.Dialog = dialog;
    control.Form = &form;
    control.Text = CString(form.Text);
    control.Enabled = !form.Disabled;
    for (const std::string_view item : form.Items) {
        control.Items.emplace_back(item);
    }
    return control;
}

}  // namespace

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

bool HeadlessWindowSystem::CreateDialog(HWND dialog, const DialogTemplate& form,
                                        std::span<const HWND> controls, HWND) {
    HeadlessDialog made;
    made.Window = dialog;
    made.Title = CString(form.Caption);
    made.Controls.assign(controls.begin(), controls.end());
    HWND before = nullptr;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        HeadlessControl control = MakeControl(dialog, controls[i], form.Controls[i]);
        control.Buddy = before;
        before = controls[i];
        m_State->Controls[controls[i]] = std::move(control);
    }
    m_State->Dialogs[dialog] = std::move(made);
    return true;
}

int HeadlessWindowSystem::RunDialog(HWND dialog) {
    const HeadlessDialog* const shown = FindDialog(dialog);
    if (!shown) {
        return Failed;
    }
    for (const HWND control : shown->Controls) {
        Draw(*FindControl(control), ODA_DRAWENTIRE);
    }
    m_State->Running.push_back(dialog);
    if (const UserScript::DialogAct act = m_Script.NextAct()) {
        User user(*this, dialog);
        act(user);
    }
    if (!shown->HasEnded) {
        Deliver(dialog, WM_CLOSE, 0, 0);
    }
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
        Draw(*control, ODA_DRAWENTIRE);
    }
}

bool HeadlessWindowSystem::IsEnabled(HWND control) const {
    const HeadlessControl* const found = FindControl(control);
    return found ? found->Enabled : FindDialog(control) != nullptr;
}

void HeadlessWindowSystem::Enable(HWND control, bool enable) {
    if (HeadlessControl* const found = FindControl(control)) {
        found->Enabled = enable;
    }
}

void HeadlessWindowSystem::SetFocus(HWND control) {
    HeadlessControl* const found = FindControl(control);
    if (!found || !found->Enabled) {
        return;
    }
    HWND& focus = FindDialog(found->Dialog)->Focus;
    HeadlessControl* const before = FindControl(focus);
    focus = control;
    if (before && before != found) {
        Draw(*before, ODA_FOCUS);
    }
    Draw(*found, ODA_FOCUS);
}

HWND HeadlessWindowSystem::Focus(HWND dialog) const {
    const HeadlessDialog* const found = FindDialog(dialog);
    return found ? found->Focus : nullptr;
}

void HeadlessWindowSystem::Invalidate(HWND control) {
    if (HeadlessControl* const found = FindControl(control)) {
        Draw(*found, ODA_DRAWENTIRE);
    }
}

void HeadlessWindowSystem::Draw(HeadlessControl& button, UINT action) {
    const SIZE size = FaceSizeOf(*button.Form);
    CDC dc;
    CBitmap surface;
    if (!button.Is(CONTROL::OWNER_BUTTON) || !dc.CreateCompatibleDC(nullptr) ||
        !surface.CreateCompatibleBitmap(&dc, size.cx, size.cy)) {
        return;
    }
    CBitmap* const before = dc.SelectObject(&surface);
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    const bool isNew = button.Face.empty();
    for (int y = 0; y < size.cy && !isNew; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            dc.SetPixel(x, y, button.Face[static_cast<std::size_t>(y * size.cx + x)]);
        }
    }
    DeliverDraw(button.Window, action, dc, {0, 0, size.cx, size.cy});
    button.FaceSize = size;
    button.Face.clear();
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            button.Face.push_back(dc.GetPixel(x, y));
        }
    }
    dc.SelectObject(before);
}

COLORREF HeadlessWindowSystem::FacePixel(HWND button, int x, int y) const noexcept {
    const HeadlessControl* const found = FindControl(button);
    const SIZE size = found ? found->FaceSize : SIZE();
    if (x < 0 || y < 0 || x >= size.cx || y >= size.cy) {
        return CLR_INVALID;
    }
    return found->Face[static_cast<std::size_t>(y * size.cx + x)];
}

SIZE HeadlessWindowSystem::FaceSize(HWND button) const noexcept {
    const HeadlessControl* const found = FindControl(button);
    return found ? found->FaceSize : SIZE();
}

int HeadlessWindowSystem::ShowMessage(HWND, const MessageRequest& request) {
    return m_Script.NextMessage(request);
}

bool HeadlessWindowSystem::ChooseFile(HWND, const FileRequest& request, CString& path) {
    const std::optional<CString> chosen = m_Script.NextFile(request);
    if (chosen) {
        path = WithExtension(*chosen, request.DefaultExtension);
    }
    return chosen.has_value();
}

bool HeadlessWindowSystem::ChooseColor(HWND, const ColorRequest& request, COLORREF& color) {
    const std::optional<COLORREF> chosen = m_Script.NextColor(request);
    color = chosen.value_or(color);
    return chosen.has_value();
}

}  // namespace PLATFORM
