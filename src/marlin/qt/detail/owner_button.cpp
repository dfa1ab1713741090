// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/owner_button.h>

#include <QFontInfo>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <algorithm>

namespace PLATFORM::detail {

namespace {

// The dialog's font for drawing in pixels of the screen, of which a dense one has several for each
// pixel of Qt.
LOGFONTA LogFontOf(const QWidget& widget) {
    const QFontInfo shown(widget.font());
    LOGFONTA font;
    font.lfHeight = -qRound(shown.pixelSize() * widget.devicePixelRatioF());
    font.lfWeight = shown.weight();
    const QByteArray face = shown.family().toLatin1().left(LF_FACESIZE - 1);
    std::ranges::copy(face, font.lfFaceName);
    return font;
}

}  // namespace

void OwnerButton::DrawAgain() {
    const QSize pixels = size() * devicePixelRatioF();
    CDC dc;
    CBitmap surface;
    if (!dc.CreateCompatibleDC(nullptr) ||
        !surface.CreateCompatibleBitmap(&dc, pixels.width(), pixels.height())) {
        return;
    }
    CFont font;
    const LOGFONTA wanted = LogFontOf(*this);
    font.CreateFontIndirectA(&wanted);
    CBitmap* const surfaceBefore = dc.SelectObject(&surface);
    CFont* const fontBefore = dc.SelectObject(&font);
    SendDraw(m_Handle, ODA_DRAWENTIRE, dc, {0, 0, pixels.width(), pixels.height()});
    // The pixels of a surface are in the order of the image's.
    m_Face = QImage(pixels, QImage::Format_RGB32);
    surface.GetBitmapBits(static_cast<unsigned long>(m_Face.sizeInBytes()), m_Face.bits());
    dc.SelectObject(fontBefore);
    dc.SelectObject(surfaceBefore);
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

}  // namespace PLATFORM::detail
