// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/extents_2d.h>
#include <marlin/platform/drawing/rect.h>

/// Maps a world area, y upwards, onto a device rectangle, y downwards, and back. The whole area
/// fits into the rectangle with its aspect ratio kept and its centre on the rectangle's, where
/// the rectangle's top is 0; a top of t puts it 2t above. Made empty, with scale 0; conversions
/// mean something after `Create` with an area and a rectangle that are not empty.
class MARLIN_API GDIMapper {
public:
    void Create(const GTL::Extents2D<double>& area, const CRect& device) noexcept;

    /// World to device, cut towards 0. What does not fit 32 bits becomes the nearest number that
    /// does, what is not a number 0.
    [[nodiscard]] CPoint operator<<(const GTL::Point2D<double>& p) const noexcept;
    /// Device to world: the middle of the pixel.
    [[nodiscard]] GTL::Point2D<double> operator<<(const CPoint& pt) const noexcept;
    /// A world distance in device units, halves up; the scale must not be 0.
    [[nodiscard]] int PixelDist(double distance) const noexcept;
    [[nodiscard]] double WorldDist(int distance) const noexcept { return distance * m_Scale; }
    /// World units a device unit.
    [[nodiscard]] double GetScale() const noexcept { return m_Scale; }

private:
    double m_WorldCenterX = 0;
    double m_WorldCenterY = 0;
    int m_DeviceCenterX = 0;
    int m_DeviceCenterY = 0;
    double m_Scale = 0;
    int m_DeviceHeight = 0;
};
