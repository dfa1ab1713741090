// SPDX-License-Identifier: MIT
#include <marlin/geometry/point_3d.h>

namespace GTL {

template class Point3D<float>;
template class Point3D<double>;

// Arrays of three coordinates and space points have one layout.
static_assert(sizeof(Point3D<float>) == 3 * sizeof(float));
static_assert(sizeof(Point3D<double>) == 3 * sizeof(double));

}  // namespace GTL
