// SPDX-License-Identifier: MIT
#include "qt_user.h"

#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/spin_arrows.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>
#include <map>

namespace {

Qt::Key KeyOf(int key) {
    static const std::map<int, Qt::Key> keys = {
        {VK_RETURN, Qt::Key_Return}, {VK_ESCAPE, Qt::Key_Escape}, {VK_UP, Qt::Key_Up},
        {VK_DOWN, Qt::Key_Down},     {VK_INSERT, Qt::Key_Insert}, {VK_DELETE, Qt::Key_Delete},
        {VK_F1, Qt::Key_F1},         {VK_F2, Qt::Key_F2}};
    const auto found = keys.find(key);
    // Letters have the same numbers in both.
    return found == keys.end() ? static_cast<Qt::Key>(key) : found->second;
}

QPoint PlaceOf(QTreeView& list, int row) {
    const QModelIndex place = list.model()->index(row, 0);
    list.scrollTo(place);
    return list.visualRect(place).center();
}

QPoint EmptyPlace(const QTreeView& list) {
    return list.viewport()->rect().bottomRight() - QPoint(2, 2);
}

}  // namespace

bool QtUser::IsOnTop() const {
    return QApplication::activeModalWidget() == m_Windows.Widget(m_Dialog);
}

template <typename Kind>
Kind* QtUser::Reach(int id) const {
    const CWnd* const window = IsOnTop() ? CWnd::FromHandle(m_Dialog)->GetDlgItem(id) : nullptr;
    auto* const widget =
        window ? dynamic_cast<Kind*>(m_Windows.Widget(window->GetSafeHwnd())) : nullptr;
    return widget && widget->isEnabled() && widget->isVisible() ? widget : nullptr;
}

bool QtUser::Click(int control) {
    if (auto* const box = Reach<QCheckBox>(control)) {
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Space);
        return true;
    }
    auto* const button = Reach<QAbstractButton>(control);
    if (button) {
        QTest::mouseClick(button, Qt::LeftButton);
    }
    return button != nullptr;
}

bool QtUser::Type(int edit, const CString& text) {
    auto* const list = Reach<QTreeView>(edit);
    auto* const found =
        list ? qobject_cast<QLineEdit*>(list->window()->focusWidget()) : Reach<QLineEdit>(edit);
    if (!found) {
        return false;
    }
    QTest::mouseClick(found, Qt::LeftButton);
    QTest::keyClick(found, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(found, Qt::Key_Delete);
    QTest::keyClicks(found, QString::fromUtf8(text.GetString()));
    if (list) {
        QTest::keyClick(found, Qt::Key_Return);
        QApplication::processEvents();  // takes the text when the key is done with
    }
    return true;
}

bool QtUser::Spin(int spin, int steps) {
    auto* const arrows = Reach<PLATFORM::detail::SpinArrows>(spin);
    for (int i = 0; arrows && i < std::abs(steps); ++i) {
        QTest::mouseClick(arrows->Arrow(steps > 0), Qt::LeftButton);
    }
    return arrows != nullptr;
}

bool QtUser::Choose(int combo, int item) {
    auto* const found = Reach<QComboBox>(combo);
    if (!found || item < 0 || item >= found->count()) {
        return false;
    }
    found->setFocus();
    QTest::keyClick(found, Qt::Key_Home);
    for (int i = 0; i < item; ++i) {
        QTest::keyClick(found, Qt::Key_Down);
    }
    return found->currentIndex() == item;
}

bool QtUser::SelectRows(int list, const std::vector<int>& rows) {
    auto* const found = Reach<QTreeView>(list);
    const auto isThere = [&](int row) { return row >= 0 && row < found->model()->rowCount(); };
    if (!found || !std::ranges::all_of(rows, isThere)) {
        return false;
    }
    Qt::KeyboardModifiers held = Qt::NoModifier;
    for (const int row : rows) {
        QTest::mouseClick(found->viewport(), Qt::LeftButton, held, PlaceOf(*found, row));
        held = Qt::ControlModifier;
    }
    if (rows.empty()) {
        QTest::mouseClick(found->viewport(), Qt::LeftButton, held, EmptyPlace(*found));
    }
    return true;
}

bool QtUser::DoubleClick(int list, int row) {
    if (!SelectRows(list, {row})) {
        return false;
    }
    auto* const found = Reach<QTreeView>(list);
    QTest::mouseDClick(found->viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(*found, row));
    return true;
}

bool QtUser::RightClick(int list, int row) {
    auto* const found = Reach<QTreeView>(list);
    if (!found) {
        return false;
    }
    const QPoint place = row < 0 ? EmptyPlace(*found) : PlaceOf(*found, row);
    QTest::mouseClick(found->viewport(), Qt::RightButton, Qt::NoModifier, place);
    // The window system makes the request of the press, which is not one here.
    QContextMenuEvent request(QContextMenuEvent::Mouse, place,
                              found->viewport()->mapToGlobal(place));
    QApplication::sendEvent(found->viewport(), &request);
    return true;
}

bool QtUser::Press(int key, const PLATFORM::HeldKeys& held) {
    if (!IsOnTop()) {
        return false;
    }
    QWidget* const dialog = m_Windows.Widget(m_Dialog);
    QWidget* const focus = dialog->focusWidget();
    const Qt::KeyboardModifiers modifiers = (held.Shift ? Qt::ShiftModifier : Qt::NoModifier) |
                                            (held.Control ? Qt::ControlModifier : Qt::NoModifier);
    QTest::keyClick(focus ? focus : dialog, KeyOf(key), modifiers);
    return true;
}

void QtUser::Idle() {
    QApplication::processEvents();
}

bool QtUser::CloseFrame() {
    const bool onTop = IsOnTop();
    if (onTop) {
        m_Windows.Widget(m_Dialog)->close();
    }
    return onTop;
}
