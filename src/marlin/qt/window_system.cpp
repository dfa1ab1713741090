// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/form_layout.h>
#include <marlin/qt/detail/owner_button.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/state.h>
#include <marlin/qt/detail/widgets.h>

#include <QLabel>
#include <QLineEdit>
#include <QWindow>

namespace PLATFORM {

namespace {

// The window manager keeps the dialog above its parent, which does not own it.
void PutAbove(QWidget& dialog, const QWidget* parent) {
    dialog.winId();
    if (parent) {
        dialog.windowHandle()->setTransientParent(parent->window()->windowHandle());
    }
}

}  // namespace

QtWindowSystem::QtWindowSystem() : m_State(std::make_unique<State>()) {}

QtWindowSystem::~QtWindowSystem() = default;

QWidget* QtWindowSystem::Widget(HWND window) const noexcept {
    const auto found = m_State->Widgets.find(window);
    return found == m_State->Widgets.end() ? nullptr : found->second;
}

bool QtWindowSystem::CreateDialog(HWND dialog, const DialogTemplate& form,
                                  std::span<const HWND> controls, HWND parent) {
    auto window = std::make_unique<DialogWindow>(dialog);
    window->setWindowTitle(QtText(form.Caption));
    const std::vector<QWidget*> widgets = MakeWidgets(form, controls, *window);
    LayOut(form, widgets, *window);
    PutAbove(*window, Widget(parent));
    m_State->Widgets[dialog] = window.get();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        m_State->Widgets[controls[i]] = widgets[i];
        m_State->Handles[widgets[i]] = controls[i];
        if (form.Controls[i].Sorted) {
            m_State->Sorted[controls[i]] = true;
        }
    }
    m_State->Dialogs[dialog] = {std::move(window), {controls.begin(), controls.end()}};
    return true;
}

int QtWindowSystem::RunDialog(HWND dialog) {
    auto* const window = Find<DialogWindow>(dialog);
    return window ? window->Run() : Failed;
}

void QtWindowSystem::EndDialog(HWND dialog, int result) {
    if (auto* const window = Find<DialogWindow>(dialog)) {
        window->End(result);
    }
}

void QtWindowSystem::DestroyDialog(HWND dialog) {
    const auto found = m_State->Dialogs.find(dialog);
    if (found == m_State->Dialogs.end()) {
        return;
    }
    for (const HWND control : found->second.Controls) {
        m_State->Handles.erase(Widget(control));
        m_State->Widgets.erase(control);
        m_State->Sorted.erase(control);
    }
    m_State->Widgets.erase(dialog);
    const auto window = std::move(found->second.Window);
    m_State->Dialogs.erase(found);
}

CString QtWindowSystem::Text(HWND window) const {
    if (const auto* const edit = Find<QLineEdit>(window)) {
        return TextOf(edit->text());
    }
    if (const auto* const button = Find<QAbstractButton>(window)) {
        return TextOf(button->text());
    }
    if (const auto* const label = Find<QLabel>(window)) {
        return TextOf(label->text());
    }
    const auto* const dialog = Find<DialogWindow>(window);
    return dialog ? TextOf(dialog->windowTitle()) : CString();
}

void QtWindowSystem::SetText(HWND window, const CString& text) {
    const QString shown = QtText(text.View());
    if (auto* const edit = Find<QLineEdit>(window)) {
        edit->setText(shown);
    } else if (auto* const button = Find<QAbstractButton>(window)) {
        button->setText(shown);
        Invalidate(window);
    } else if (auto* const label = Find<QLabel>(window)) {
        label->setText(shown);
    } else if (auto* const dialog = Find<DialogWindow>(window)) {
        dialog->setWindowTitle(shown);
    }
}

bool QtWindowSystem::IsEnabled(HWND control) const {
    const QWidget* const widget = Widget(control);
    return widget && widget->isEnabledTo(widget->parentWidget());
}

void QtWindowSystem::Enable(HWND control, bool enable) {
    if (QWidget* const widget = Widget(control)) {
        widget->setEnabled(enable);
    }
}

void QtWindowSystem::SetFocus(HWND control) {
    if (QWidget* const widget = Widget(control)) {
        widget->setFocus();
        if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
            edit->selectAll();
        }
    }
}

HWND QtWindowSystem::Focus(HWND dialog) const {
    const QWidget* const window = Widget(dialog);
    const QWidget* const focus = window ? window->focusWidget() : nullptr;
    const auto found = m_State->Handles.find(focus);
    return found == m_State->Handles.end() ? nullptr : found->second;
}

void QtWindowSystem::Invalidate(HWND control) {
    if (auto* const button = Find<OwnerButton>(control)) {
        button->DrawAnew();
    }
}

}  // namespace PLATFORM
