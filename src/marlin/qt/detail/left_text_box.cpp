// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/left_text_box.h>

#include <QShortcutEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace PLATFORM::detail {

bool LeftTextBox::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        return QCheckBox::event(event);
    }
    setFocus(Qt::ShortcutFocusReason);
    click();
    return true;
}

void LeftTextBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    QStyleOptionButton box = option;
    box.rect = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, box);

    const QRect place(rect().topLeft(), QPoint(box.rect.left() - 1, rect().bottom()));
    constexpr int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
    painter.drawItemText(place, flags, palette(), isEnabled(), text(), QPalette::WindowText);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = painter.boundingRect(place, flags, text());
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

}  // namespace PLATFORM::detail
