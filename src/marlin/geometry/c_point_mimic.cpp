// SPDX-License-Identifier: MIT
#include <marlin/geometry/c_point_mimic.h>

#include <algorithm>
#include <cmath>
#include <limits>

static_assert(sizeof(CPointMimic) == sizeof(CPoint) && alignof(CPointMimic) == alignof(CPoint));

namespace {

int DeviceUnits(double value) noexcept {
    if (std::isnan(value)) {
        return 0;
    }
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(
        std::clamp<double>(std::floor(value + 0.5), Limits::min(), Limits::max()));
}

}  // namespace

CPointMimic::CPointMimic(const GTL::Point2D<float>& point) noexcept
    : m_X(DeviceUnits(point.x)), m_Y(DeviceUnits(point.y)) {}

CPointMimic::CPointMimic(const GTL::Point2D<double>& point) noexcept
    : m_X(DeviceUnits(point.x)), m_Y(DeviceUnits(point.y)) {}
