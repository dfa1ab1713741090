// SPDX-License-Identifier: MIT
#include <marlin/geometry/transformation_2d.h>

namespace GTL {

template <PlanePoint P>
void Transformation2D<P>::Rotate(const Angle& angle) noexcept {
    const double cosine = angle.Cos();
    const double sine = angle.Sin();
    for (auto& [first, second] : m_Columns) {
        const double before = first;
        first = cosine * before + sine * second;
        second = cosine * second - sine * before;
    }
}

template class Transformation2D<Point2D<double>>;

}  // namespace GTL
