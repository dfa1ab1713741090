// SPDX-License-Identifier: MIT
#include "scripted_windows.h"

#include "qt_user.h"
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/qt_text.h>

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// Does something with the box that is going to be shown.
template <typename Box, typename Act>
void InNext(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* const box = qobject_cast<Box*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr) << "another window is on top";
        act(*box);
    });
}

QMessageBox::StandardButton ButtonOf(int number) {
    return number == IDYES      ? QMessageBox::Yes
           : number == IDNO     ? QMessageBox::No
           : number == IDCANCEL ? QMessageBox::Cancel
                                : QMessageBox::Ok;
}

}  // namespace

int ScriptedWindows::RunDialog(HWND dialog) {
    const PLATFORM::UserScript::DialogAct act = m_Script.NextAct();
    QTimer::singleShot(0, Widget(dialog), [this, dialog, act] {
        QtUser user(*this, dialog);
        if (act) {
            act(user);
        }
        user.CloseFrame();
    });
    return QtWindowSystem::RunDialog(dialog);
}

int ScriptedWindows::ShowMessage(HWND parent, const PLATFORM::MessageRequest& request) {
    const int button = m_Script.NextMessage(request);
    InNext<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), PLATFORM::detail::QtText(request.Text.View()));
        QTest::mouseClick(box.button(ButtonOf(button)), Qt::LeftButton);
    });
    const int result = QtWindowSystem::ShowMessage(parent, request);
    EXPECT_EQ(result, button);
    return result;
}

int ScriptedWindows::ShowMenu(HWND parent, const PLATFORM::MenuRequest& request) {
    const int chosen = m_Script.NextMenu(request);
    QTimer::singleShot(0, qApp, [chosen] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* const action : menu->actions()) {
            if (action->isEnabled() && action->data().toInt() == chosen && chosen != 0) {
                QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                                  menu->actionGeometry(action).center());
                return;
            }
        }
        menu->close();
    });
    return QtWindowSystem::ShowMenu(parent, request);
}

bool ScriptedWindows::ChooseFile(HWND parent, const PLATFORM::FileRequest& request, CString& path) {
    const std::optional<CString> chosen = m_Script.NextFile(request);
    InNext<QFileDialog>([&](QFileDialog& box) {
        if (!chosen) {
            box.reject();
            return;
        }
        auto* const name = box.findChild<QLineEdit*>("fileNameEdit");
        name->setText(PLATFORM::detail::QtPath(*chosen));
        QTest::keyClick(name, Qt::Key_Return);
    });
    return QtWindowSystem::ChooseFile(parent, request, path);
}

bool ScriptedWindows::ChooseColor(HWND parent, const PLATFORM::ColorRequest& request,
                                  COLORREF& color) {
    const std::optional<COLORREF> chosen = m_Script.NextColor(request);
    InNext<QColorDialog>([&](QColorDialog& box) {
        EXPECT_EQ(PLATFORM::detail::ColorOf(box.currentColor()), request.Color);
        if (!chosen) {
            QTest::keyClick(&box, Qt::Key_Escape);
            return;
        }
        box.setCurrentColor(PLATFORM::detail::QtColor(*chosen));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    return QtWindowSystem::ChooseColor(parent, request, color);
}
