// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/drop_down_widget.h>
#include <marlin/qt/detail/left_text_box.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/make.h>
#include <marlin/qt/detail/owner_button.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/spin_arrows.h>
#include <marlin/qt/detail/widgets.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

namespace PLATFORM::detail {

namespace {

template <typename Button, typename... Arguments>
Button* MakeButton(HWND handle, const QString& text, Arguments... arguments) {
    auto* const button = Make<Button>(arguments...);
    button->setText(text);
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [handle] { SendCommand(handle, BN_CLICKED); });
    return button;
}

QWidget* MakeOwnerButton(HWND handle, const QString& text) {
    auto* const button = MakeButton<OwnerButton>(handle, text, handle);
    // Enter confirms the dialog, also while this button has the focus.
    button->setAutoDefault(false);
    return button;
}

QWidget* MakePushButton(HWND handle, const QString& text, bool isDefault) {
    auto* const button = MakeButton<QPushButton>(handle, text);
    button->setDefault(isDefault);
    return button;
}

QWidget* MakeWidget(const ControlTemplate& control, HWND handle, QWidget* before) {
    const QString text = QtText(control.Text);
    switch (control.Kind) {
        case CONTROL::LABEL:
            return Make<QLabel>(text);
        case CONTROL::EDIT:
            return Make<QLineEdit>(text);
        case CONTROL::PUSH_BUTTON:
        case CONTROL::DEFAULT_BUTTON:
            return MakePushButton(handle, text, control.Kind == CONTROL::DEFAULT_BUTTON);
        case CONTROL::OWNER_BUTTON:
            return MakeOwnerButton(handle, text);
        case CONTROL::CHECK_BOX:
            return MakeButton<LeftTextBox>(handle, text);
        case CONTROL::DROP_DOWN_LIST:
            return Make<DropDownWidget>(control);
        case CONTROL::SPIN:
            return Make<SpinArrows>(qobject_cast<QLineEdit*>(before));
        case CONTROL::REPORT_LIST:
            return Make<ListWidget>(handle);
    }
    return Make<QWidget>();
}

void Name(const DialogTemplate& form, std::span<QWidget* const> widgets) {
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        const ControlTemplate* const before = i > 0 ? &form.Controls[i - 1] : nullptr;
        widgets[i]->setAccessibleName(QtText(NameOf(form, i)));
        auto* const label = i > 0 ? qobject_cast<QLabel*>(widgets[i - 1]) : nullptr;
        // A label without a mnemonic is the heading of several controls.
        if (label && before->Text.find('&') != std::string_view::npos) {
            label->setBuddy(widgets[i]);
        }
    }
}

void SetTabOrder(std::span<QWidget* const> widgets) {
    QWidget* before = nullptr;
    for (QWidget* const widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        if (before) {
            QWidget::setTabOrder(before, widget);
        }
        before = widget;
    }
}

}  // namespace

std::vector<QWidget*> MakeWidgets(const DialogTemplate& form, std::span<const HWND> handles,
                                  QDialog& dialog) {
    std::vector<QWidget*> widgets;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const ControlTemplate& control = form.Controls[i];
        QWidget* const widget =
            MakeWidget(control, handles[i], widgets.empty() ? nullptr : widgets.back());
        widget->setParent(&dialog);
        widget->setEnabled(!control.Disabled);
        widgets.push_back(widget);
    }
    Name(form, widgets);
    SetTabOrder(widgets);
    return widgets;
}

}  // namespace PLATFORM::detail
