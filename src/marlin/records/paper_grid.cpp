// SPDX-License-Identifier: MIT
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/paper_grid.h>

#include <algorithm>
#include <cmath>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

double SetStep(double step) noexcept {
    // In this order a step that is not a number becomes 1, too.
    return std::max(1.0, std::fabs(step));
}

double Snap(double position, double step, double origin) noexcept {
    // Rounding the distance without its sign takes halves away from the origin on either side.
    const double distance = position - origin;
    const double steps = std::floor(std::fabs(distance) / step + 0.5);
    const double sign = distance >= 0.0 ? 1.0 : -1.0;
    const double snapped = steps * sign * step + origin;
    return std::isfinite(snapped) ? snapped : position;
}

// Files hold steps of any size, also below the 1 of the setters.
struct Step {
    double& Length;

    void Read(const SectionKey& key) {
        key >> Length;
        Length = std::fabs(Length);
    }
    void Write(SectionKey& key) const { key << Length; }
    [[nodiscard]] RecordValue Value() const { return Length; }
};

}  // namespace

PaperGrid::PaperGrid(double xStep, double yStep, const GTL::Point2D<float>& origin, bool snapOn,
                     bool visible) noexcept
    : m_XStep(std::fabs(xStep)),
      m_YStep(std::fabs(yStep)),
      m_Origin(origin),
      m_SnapOn(snapOn),
      m_Visible(visible) {}

// Not in the header, so that the library alone has the table of virtual functions.
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

// The spelling of the origin is that of the files in use.
template <class Keys>
void PaperGrid::ForEachKey(const Keys& keys) {
    keys({"XStep", 1, "distance of the points in x", RecordKey::Paper}, Step{m_XStep});
    keys({"YStep", 2, "distance of the points in y", RecordKey::Paper}, Step{m_YStep});
    keys(Common({"Visible", 5, "shown"}), m_Visible);
    keys({"SnapOn", 6, "positions snap to the points"}, m_SnapOn);
    keys({"OringinX", 3, "x of one of the points", RecordKey::Paper}, m_Origin.x);
    keys({"OringinY", 4, "y of one of the points", RecordKey::Paper}, m_Origin.y);
}

ErrorString PaperGrid::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return ErrorString(true);
}

ErrorString PaperGrid::Write(Section& section) const {
    PaperGrid(*this).ForEachKey(KeyAppender(section));
    return ErrorString(true);
}

RecordFields PaperGrid::Fields() const {
    RecordFields fields;
    PaperGrid(*this).ForEachKey(KeyLister(fields));
    return fields;
}
