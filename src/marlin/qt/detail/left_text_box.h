// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

namespace PLATFORM::detail {

/// A check box whose text begins at its left edge, as labels do; the box stands at the right edge.
class LeftTextBox final : public QCheckBox {
public:
    LeftTextBox() { setLayoutDirection(Qt::RightToLeft); }

protected:
    /// Its mnemonic counts at once, so that a confirmation typed right after it finds it done.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace PLATFORM::detail
