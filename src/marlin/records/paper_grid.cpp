// SPDX-License-Identifier: MIT
#include <marlin/records/paper_grid.h>
#include <marlin/settings/section.h>

#include <algorithm>
#include <cmath>

namespace {

// The spelling is that of the files in use.
const char* const originXKey = "OringinX";
const char* const originYKey = "OringinY";

double SetStep(double step) noexcept {
    return std::max(1.0, std::fabs(step));
}

double Snap(double position, double step, double origin) noexcept {
    if (step == 0.0) {
        return position;
    }
    const double distance = position - origin;
    const double steps = std::floor(std::fabs(distance) / step + 0.5);
    const double sign = distance >= 0.0 ? 1.0 : -1.0;
    return steps * sign * step + origin;
}

void ReadStep(const SectionKey& key, double& step) {
    key >> step;
    step = std::fabs(step);
}

}  // namespace

PaperGrid::PaperGrid(double xStep, double yStep, const GTL::Point2D<float>& origin, bool snapOn,
                     bool visible) noexcept
    : m_XStep(std::fabs(xStep)),
      m_YStep(std::fabs(yStep)),
      m_Origin(origin),
      m_SnapOn(snapOn),
      m_Visible(visible) {}

PaperGrid::~PaperGrid() = default;

GTL::Point2D<double> PaperGrid::SnapToGrid(const GTL::Point2D<double>& point) const noexcept {
    return {Snap(point.x, m_XStep, static_cast<double>(m_Origin.x)),
            Snap(point.y, m_YStep, static_cast<double>(m_Origin.y))};
}

void PaperGrid::XStep(double step) noexcept {
    m_XStep = SetStep(step);
}

void PaperGrid::YStep(double step) noexcept {
    m_YStep = SetStep(step);
}

ErrorString PaperGrid::Read(const Section& section) {
    ReadStep(section["XStep"], m_XStep);
    ReadStep(section["YStep"], m_YStep);
    section["Visible"] >> m_Visible;
    section["SnapOn"] >> m_SnapOn;
    section[originXKey] >> m_Origin.x;
    section[originYKey] >> m_Origin.y;
    return ErrorString(true);
}

ErrorString PaperGrid::Write(Section& section) const {
    section += SectionKey("XStep", m_XStep);
    section += SectionKey("YStep", m_YStep);
    section += SectionKey("Visible", m_Visible);
    section += SectionKey("SnapOn", m_SnapOn);
    section += SectionKey(originXKey, m_Origin.x);
    section += SectionKey(originYKey, m_Origin.y);
    return ErrorString(true);
}
