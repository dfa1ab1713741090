// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class QLineEdit;
class QToolButton;

namespace PLATFORM {

/// Two arrows that set whole numbers in an edit, as its arrow keys do then.
class SpinArrows final : public QWidget {
public:
    explicit SpinArrows(QLineEdit* edit);

    void SetRange(int lower, int upper) noexcept;
    /// Null without arrows to press.
    [[nodiscard]] QToolButton* Arrow(bool up) const noexcept { return up ? m_Up : m_Down; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] QToolButton* MakeArrow(Qt::ArrowType type, int steps);
    void Step(int steps);

    QPointer<QLineEdit> m_Edit;
    QToolButton* m_Up;
    QToolButton* m_Down;
    int m_Lower = 0;
    int m_Upper = 100;
};

}  // namespace PLATFORM
