// SPDX-License-Identifier: MIT
#include <marlin/geometry/point_2d.h>

namespace GTL {

template class Point2D<int>;
template class Point2D<float>;
template class Point2D<double>;
template class Transformation<Point2D<double>>;

}  // namespace GTL
