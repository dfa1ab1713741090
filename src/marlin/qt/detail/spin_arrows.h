// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/spin_range.h>

#include <QPointer>
#include <QWidget>

class QLineEdit;
class QToolButton;

namespace PLATFORM::detail {

/// Two arrows that count the whole number in an edit up and down, as do then the edit's own arrow
/// keys.
class SpinArrows final : public QWidget {
public:
    explicit SpinArrows(QLineEdit* edit);

    void SetRange(const SpinRange& range) noexcept { m_Range = range; }
    /// The upper or the lower arrow.
    [[nodiscard]] QToolButton* Arrow(bool up) const noexcept { return up ? m_Up : m_Down; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] QToolButton* MakeArrow(Qt::ArrowType type, int steps);
    void Step(int steps);

    QPointer<QLineEdit> m_Edit;
    QToolButton* m_Up;
    QToolButton* m_Down;
    SpinRange m_Range;
};

}  // namespace PLATFORM::detail
