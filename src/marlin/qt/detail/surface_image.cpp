// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/qt/detail/surface_image.h>

namespace PLATFORM::detail {

QImage DrawnImage(QSize pixels, const std::function<void(CDC&)>& draw) {
    CDC dc;
    CBitmap surface;
    if (!dc.CreateCompatibleDC(nullptr) ||
        !surface.CreateCompatibleBitmap(&dc, pixels.width(), pixels.height())) {
        return {};
    }
    CGdiObject* const before = dc.SelectObject(&surface);
    draw(dc);
    // The pixels of a surface are in the order of the image's.
    QImage image(pixels, QImage::Format_RGB32);
    surface.GetBitmapBits(static_cast<unsigned long>(image.sizeInBytes()), image.bits());
    dc.SelectObject(before);
    return image;
}

}  // namespace PLATFORM::detail
