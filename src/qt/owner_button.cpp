// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/qt/detail/events.h>
#include <marlin/qt/detail/owner_button.h>
#include <marlin/qt/detail/qt_text.h>

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace PLATFORM {

namespace {

QImage ImageOf(CDC& dc, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixelColor(x, y, QtColor(dc.GetPixel(x, y)));
        }
    }
    return image;
}

}  // namespace

void OwnerButton::DrawAnew() {
    CDC dc;
    CBitmap surface;
    if (!dc.CreateCompatibleDC(nullptr) ||
        !surface.CreateCompatibleBitmap(&dc, width(), height())) {
        return;
    }
    CBitmap* const before = dc.SelectObject(&surface);
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    QtWindowSystem::Events::Draw(m_Handle, dc.m_hDC, {0, 0, width(), height()});
    m_Face = ImageOf(dc, size());
    dc.SelectObject(before);
    update();
}

void OwnerButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(rect(), m_Face);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(3, 3, -3, -3);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

}  // namespace PLATFORM
