// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/contours/dialogs/edit_contour_dlg.h>
#include <marlin/qt/window_system.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

#include <dialogs/dialog_test.h>

namespace {

/// The needs of people who do not see the windows or have no mouse.
class ReachTest : public DialogTest {
protected:
    /// Runs a dialog for a look at its widgets.
    template <typename Dialog>
    void Look(const std::function<void(const QWidget&)>& look) {
        const auto& windows = dynamic_cast<PLATFORM::QtWindowSystem&>(m_Stage->System());
        InDialog([&windows, &look](Screen& screen) {
            const QWidget* const dialog = windows.Widget(screen.User.Dialog());
            ASSERT_NE(dialog, nullptr);
            look(*dialog);
        });
        Dialog dialog;
        dialog.DoModal();
    }
    void LookAtAll(const std::function<void(const QWidget&)>& look) {
        Look<CContourEditor>(look);
        Look<CEditContourDlg>(look);
        Look<CContourGenerationDlg>(look);
    }
};

bool IsControl(const QObject* widget) {
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QTreeView*>(widget);
}

/// The name that a screen reader says: the label's, or else the control's own.
std::string SpokenName(QWidget* control) {
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(control);
    const auto labels = reader->relations(QAccessible::Label);
    return (labels.isEmpty() ? reader : labels.front().first)
        ->text(QAccessible::Name)
        .toStdString();
}

QString Caption(const QWidget* widget) {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const auto* const button = qobject_cast<const QAbstractButton*>(widget);
    return label ? label->text() : button ? button->text() : QString();
}

TEST_P(ReachTest, EveryControlHasANameToBeSpoken) {
    Texts names;
    LookAtAll([&names](const QWidget& dialog) {
        for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
            if (IsControl(widget) && widget->isVisible()) {
                names.push_back(SpokenName(widget));
            }
        }
    });
    const Texts wanted = {"Contours",
                          "Add",
                          "Edit",
                          "Remove",
                          "Generate from range",
                          "Generate from color table",
                          "OK",
                          "Cancel",
                          "Level",
                          "Color",
                          "Line style",
                          "Line width",
                          "Up",
                          "Down",
                          "Show labels",
                          "OK",
                          "Cancel",
                          "Highest level",
                          "Lowers level",
                          "Interval",
                          "OK",
                          "Cancel"};
    EXPECT_EQ(names, wanted);
}

TEST_P(ReachTest, NoCaptionIsCutOff) {
    LookAtAll([](const QWidget& dialog) {
        for (const QWidget* const widget : dialog.findChildren<QWidget*>()) {
            if (!Caption(widget).isEmpty()) {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << Caption(widget).toStdString();
                EXPECT_TRUE(dialog.rect().contains(widget->geometry()))
                    << Caption(widget).toStdString();
            }
        }
    });
}

TEST_P(ReachTest, TabGoesThroughTheControlsInTheOrderOfTheirNames) {
    Look<CEditContourDlg>([](const QWidget& dialog) {
        Texts order;
        const QWidget* widget = dialog.focusWidget();
        for (int i = 0; i < 7; ++i) {
            order.push_back(widget->accessibleName().toStdString());
            do {
                widget = widget->nextInFocusChain();
            } while (!IsControl(widget) || widget->focusPolicy() == Qt::NoFocus);
        }
        const Texts wanted = {
            "Level", "Color: click to change", "Line style", "Line width", "Show labels", "OK",
            "Cancel"};
        EXPECT_EQ(order, wanted);
    });
}

MARLIN_ON_EVERY_STAGE(ReachTest);

}  // namespace
