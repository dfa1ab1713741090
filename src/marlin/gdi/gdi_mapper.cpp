// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_mapper.h>

#include <limits>

namespace {

// A plain conversion is undefined for values that do not fit, and hosts draw far off their windows.
int Truncate(double value) noexcept {
    using Limits = std::numeric_limits<int>;
    if (!(value > Limits::min())) {
        return value <= Limits::min() ? Limits::min() : 0;
    }
    return value < Limits::max() ? static_cast<int>(value) : Limits::max();
}

// Differences of device coordinates are taken in 64 bits, where they cannot overflow.
int Cut(long long value) noexcept {
    return Truncate(static_cast<double>(value));
}

int Middle(int a, int b) noexcept {
    return static_cast<int>((static_cast<long long>(a) + b) / 2);
}

int Span(int from, int to) noexcept {
    return Cut(static_cast<long long>(to) - from);
}

}  // namespace

void GDIMapper::Create(const GTL::Extents2D<double>& area, const CRect& device) noexcept {
    m_DeviceHeight = Span(device.top, device.bottom);
    const double yRatio = area.ExtentY() / m_DeviceHeight;
    const double xRatio = area.ExtentX() / Span(device.left, device.right);
    // The larger one, at which the other side fits too.
    m_Scale = yRatio > xRatio ? yRatio : xRatio;
    const GTL::Point2D<double> center = area.Center();
    m_WorldCenterX = center.x;
    m_WorldCenterY = center.y;
    m_DeviceCenterX = Middle(device.right, device.left);
    m_DeviceCenterY = Middle(device.bottom, device.top);
}

CPoint GDIMapper::operator<<(const GTL::Point2D<double>& p) const noexcept {
    // The area's own height turns y round, so a rectangle below 0 moves the picture up: part of the
    // contract.
    const long long fromTop = Truncate((p.y - m_WorldCenterY) / m_Scale + m_DeviceCenterY);
    return {Truncate((p.x - m_WorldCenterX) / m_Scale + m_DeviceCenterX),
            Cut(m_DeviceHeight - fromTop)};
}

GTL::Point2D<double> GDIMapper::operator<<(const CPoint& pt) const noexcept {
    const double x = static_cast<double>(pt.x) - m_DeviceCenterX;
    const double y = static_cast<double>(m_DeviceHeight) - pt.y - m_DeviceCenterY;
    return {(x + 0.5) * m_Scale + m_WorldCenterX, (y - 0.5) * m_Scale + m_WorldCenterY};
}

int GDIMapper::PixelDist(double distance) const noexcept {
    return Truncate(distance / m_Scale + 0.5);
}
