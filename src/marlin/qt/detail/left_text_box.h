// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

namespace PLATFORM::detail {

/// A check box with its text at the left edge, where labels have theirs, and the box at the right.
class LeftTextBox final : public QCheckBox {
public:
    /// Right to left moves the box to the right edge; `paintEvent` puts the text back.
    LeftTextBox() { setLayoutDirection(Qt::RightToLeft); }

protected:
    /// Has the mnemonic change the box at once, so that Enter typed right after it confirms that.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace PLATFORM::detail
