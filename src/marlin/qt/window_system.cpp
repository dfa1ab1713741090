// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/application.h>
#include <marlin/qt/detail/boxes.h>
#include <marlin/qt/detail/dialog_window.h>
#include <marlin/qt/detail/drop_down_widget.h>
#include <marlin/qt/detail/form_layout.h>
#include <marlin/qt/detail/key_filter.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/make.h>
#include <marlin/qt/detail/owner_button.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/spin_arrows.h>
#include <marlin/qt/detail/widgets.h>
#include <marlin/qt/window_system.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QWindow>
#include <algorithm>
#include <unordered_map>

namespace PLATFORM {

using namespace detail;

struct QtWindowSystem::State {
    std::unordered_map<HWND, std::unique_ptr<DialogWindow>> Dialogs;
    std::unordered_map<HWND, QWidget*> Widgets;  ///< Dialogs and controls.
};

namespace {

// The text that a program gave to an edit field.
constexpr const char* bytesProperty = "marlinBytes";

// The window manager keeps the dialog above its parent, which does not own it.
void PutAbove(QWidget& dialog, const QWidget* parent) {
    dialog.winId();  // makes the window handle
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

void QtWindowSystem::SetWidget(HWND window, QWidget* widget) {
    if (widget) {
        m_State->Widgets[window] = widget;
    } else {
        m_State->Widgets.erase(window);
    }
}

template <typename Kind>
Kind* QtWindowSystem::Find(HWND window) const noexcept {
    return dynamic_cast<Kind*>(Widget(window));
}

bool QtWindowSystem::CreateDialog(HWND dialog, const DialogTemplate& form,
                                  std::span<const HWND> controls, HWND parent) {
    auto window = std::make_unique<DialogWindow>(dialog);
    window->setWindowTitle(QtText(form.Caption));
    const std::vector<QWidget*> widgets = MakeWidgets(form, controls, *window);
    LayOut(form, widgets, *window);
    PutAbove(*window, Widget(parent));
    window->KeepSize(m_SizesPath, form.Id);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        m_State->Widgets[controls[i]] = widgets[i];
        widgets[i]->installEventFilter(Make<KeyFilter>(controls[i], widgets[i]));
    }
    m_State->Widgets[dialog] = window.get();
    m_State->Dialogs[dialog] = std::move(window);
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
    const auto window = std::move(found->second);
    m_State->Dialogs.erase(found);
    std::erase_if(m_State->Widgets,
                  [&window](const auto& entry) { return entry.second->window() == window.get(); });
}

CString QtWindowSystem::Text(HWND window) const {
    if (const auto* const edit = Find<QLineEdit>(window)) {
        return TextOf(edit->text(), edit->property(bytesProperty).toByteArray().toStdString());
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
        edit->setProperty(bytesProperty, QByteArray(text.GetString(), text.GetLength()));
    } else if (auto* const button = Find<QAbstractButton>(window)) {
        button->setText(shown);
        Invalidate(window);
    } else if (auto* const label = Find<QLabel>(window)) {
        label->setText(shown);
    } else if (auto* const dialog = Find<DialogWindow>(window)) {
        dialog->setWindowTitle(shown);
    }
}

bool QtWindowSystem::IsEnabled(HWND window) const {
    const QWidget* const widget = Widget(window);
    return widget && widget->isEnabledTo(widget->parentWidget());
}

void QtWindowSystem::Enable(HWND control, bool enable) {
    if (QWidget* const widget = Widget(control)) {
        widget->setEnabled(enable);
    }
}

void QtWindowSystem::SetFocus(HWND control) {
    QWidget* const widget = Widget(control);
    if (!widget) {
        return;
    }
    widget->setFocus();
    if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
        // As Tab does: what is typed replaces the text.
        edit->selectAll();
    }
}

HWND QtWindowSystem::Focus(HWND dialog) const {
    const QWidget* const window = Widget(dialog);
    const QWidget* const focus = window ? window->focusWidget() : nullptr;
    const auto isFocus = [focus](const auto& entry) { return entry.second == focus; };
    const auto found = std::ranges::find_if(m_State->Widgets, isFocus);
    return found == m_State->Widgets.end() ? nullptr : found->first;
}

void QtWindowSystem::Invalidate(HWND control) {
    if (auto* const button = Find<OwnerButton>(control)) {
        button->DrawAgain();
    }
}

void QtWindowSystem::Describe(HWND control, const CString& text) {
    if (QWidget* const widget = Widget(control)) {
        widget->setAccessibleDescription(QtText(text.View()));
        widget->setToolTip(widget->accessibleDescription());
    }
}

CString QtWindowSystem::Description(HWND control) const {
    const QWidget* const widget = Widget(control);
    return widget ? TextOf(widget->accessibleDescription()) : CString();
}

bool QtWindowSystem::IsChecked(HWND box) const {
    const auto* const found = Find<QCheckBox>(box);
    return found && found->isChecked();
}

void QtWindowSystem::SetChecked(HWND box, bool checked) {
    if (auto* const found = Find<QCheckBox>(box)) {
        found->setChecked(checked);
    }
}

void QtWindowSystem::SetRange(HWND spin, const SpinRange& range) {
    if (auto* const found = Find<SpinArrows>(spin)) {
        found->SetRange(range);
    }
}

DropDownList* QtWindowSystem::FindDropDown(HWND window) const {
    return Find<DropDownWidget>(window);
}

ReportList* QtWindowSystem::FindList(HWND window) const {
    return Find<ListWidget>(window);
}

int QtWindowSystem::ShowMessage(HWND parent, const MessageRequest& request) {
    return detail::ShowMessage(Widget(parent), request);
}

int QtWindowSystem::ShowMenu(HWND parent, const MenuRequest& request) {
    return detail::ShowMenu(Widget(parent), request);
}

CString QtWindowSystem::ClipboardText() const {
    return TextOf(QApplication::clipboard()->text());
}

void QtWindowSystem::SetClipboardText(const CString& text) {
    QApplication::clipboard()->setText(QtText(text.View()));
}

bool QtWindowSystem::ChooseFile(HWND parent, const FileRequest& request, CString& path) {
    return detail::ChooseFile(Widget(parent), request, path);
}

bool QtWindowSystem::ChooseColor(HWND parent, const ColorRequest& request, COLORREF& color) {
    return detail::ChooseColor(Widget(parent), request, color);
}

}  // namespace PLATFORM

bool MARLINSUITE::UseQtWindows() {
    if (!PLATFORM::detail::HaveApplication()) {
        return false;
    }
    static auto* const windows = PLATFORM::detail::MakeForever<PLATFORM::QtWindowSystem>();
    // Messages that are posted from any thread are handled by the loop of Qt.
    PLATFORM::WakeWhenPosted(
        [] { QMetaObject::invokeMethod(qApp, PLATFORM::DispatchWaiting, Qt::QueuedConnection); });
    PLATFORM::WindowSystem::SetCurrent(windows);
    return true;
}
