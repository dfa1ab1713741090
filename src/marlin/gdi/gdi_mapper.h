// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/geometry/extents_2d.h>
#include <marlin/platform/drawing/rect.h>

/// Maps a world area, y upwards, onto a device rectangle, y downwards, and back. The whole area
/// fits into the rectangle and keeps its aspect ratio. Its centre is on the rectangle's centre when
/// the rectangle's top is 0, and 2t above it for a top of t. Made empty, with scale 0; conversions
/// have a meaning after `Create` with an area and a rectangle that are not empty.
/// @code
/// GTL::Extents2D<double> area;
/// area.Update({0, 0});
/// area.Update({100, 50});
/// GDIMapper mapper;
/// mapper.Create(area, CRect(0, 0, 200, 200));
/// assert((mapper << GTL::Point2D<double>(50, 25)) == CPoint(100, 100));
/// assert(mapper.PixelDist(1.2) == 2);  // half a world unit a pixel
/// @endcode
class MARLIN_API GDIMapper {
public:
    /// Maps the area onto the rectangle, in world units per device unit that both axes share.
    void Create(const GTL::Extents2D<double>& area, const CRect& device) noexcept;

    /// World to device: x is cut towards 0, y is the rectangle's height less the distance from its
    /// lower edge, which is cut towards 0. A coordinate that does not fit 32 bits becomes the
    /// nearest one that does, NaN becomes 0.
    [[nodiscard]] CPoint operator<<(const GTL::Point2D<double>& p) const noexcept;
    /// Device to world, half a unit to the right of the point and half a unit below it. A world
    /// point comes back within a unit, a device point not always to itself: x below 0 comes one
    /// further right, y above the lower edge one further down.
    [[nodiscard]] GTL::Point2D<double> operator<<(const CPoint& pt) const noexcept;
    /// A world distance in device units: half a unit more, cut towards 0. So 2.5 become 3, but
    /// -2.4 become -1. The scale must not be 0.
    [[nodiscard]] int PixelDist(double distance) const noexcept;
    /// A device distance in world units.
    [[nodiscard]] double WorldDist(int distance) const noexcept { return distance * m_Scale; }
    /// World units per device unit.
    [[nodiscard]] double GetScale() const noexcept { return m_Scale; }

private:
    double m_WorldCenterX = 0;
    double m_WorldCenterY = 0;
    int m_DeviceCenterX = 0;
    int m_DeviceCenterY = 0;
    double m_Scale = 0;
    int m_DeviceHeight = 0;
};
