// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/make.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/spin_arrows.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace PLATFORM::detail {

SpinArrows::SpinArrows(QLineEdit* edit)
    : m_Edit(edit), m_Up(MakeArrow(Qt::UpArrow, 1)), m_Down(MakeArrow(Qt::DownArrow, -1)) {
    auto* const column = Make<QVBoxLayout>(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_Up);
    column->addWidget(m_Down);
    if (edit) {
        edit->installEventFilter(this);
    }
}

QToolButton* SpinArrows::MakeArrow(Qt::ArrowType type, int steps) {
    auto* const arrow = Make<QToolButton>(this);
    arrow->setArrowType(type);
    arrow->setAutoRepeat(true);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    arrow->setMinimumSize(0, 0);
    arrow->setAccessibleName(steps > 0 ? "Up" : "Down");
    connect(arrow, &QToolButton::clicked, this, [this, steps] { Step(steps); });
    return arrow;
}

void SpinArrows::Step(int steps) {
    if (m_Edit) {
        m_Edit->setText(QtText(m_Range.Step(TextOf(m_Edit->text()), steps).View()));
    }
}

bool SpinArrows::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

}  // namespace PLATFORM::detail
