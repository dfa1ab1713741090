// SPDX-License-Identifier: MIT
#include <marlin/geometry/transformation_2d.h>

#include <cstddef>

namespace GTL {

template <PlanePoint P>
void Transformation2D<P>::Rotate(const Angle& angle) noexcept {
    const double cosine = angle.Cos();
    const double sine = angle.Sin();
    for (std::size_t column = 0; column < 3; ++column) {
        const double first = m_Matrix[0][column];
        const double second = m_Matrix[1][column];
        m_Matrix[0][column] = cosine * first + sine * second;
        m_Matrix[1][column] = cosine * second - sine * first;
    }
}

template class Transformation2D<Point2D<double>>;

}  // namespace GTL
