// SPDX-License-Identifier: MIT
#include <marlin/geometry/geo_primitive.h>

namespace GTL {

template class GeoPrimitiveBase<Point2D<double>>;
template class GeoPrimitive<Point2D<double>, 4>;

}  // namespace GTL
