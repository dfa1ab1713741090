// SPDX-License-Identifier: MIT
// The templates whose members are all in their headers, compiled once for all hosts.
#include <marlin/geometry/extents_2d.h>
#include <marlin/geometry/extents_3d.h>
#include <marlin/geometry/geo_primitive.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/point_3d.h>
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/vector_2d.h>
#include <marlin/geometry/vector_3d.h>

namespace GTL {

template class Vector2D<int>;
template class Vector2D<float>;
template class Vector2D<double>;
template class Vector3D<float>;
template class Vector3D<double>;
template class Point2D<int>;
template class Point2D<float>;
template class Point2D<double>;
template class Point3D<float>;
template class Point3D<double>;
template class Extents2D<float>;
template class Extents2D<double>;
template class Extents3D<float>;
template class Extents3D<double>;
template class Transformation<Point2D<double>>;
template class GeoPrimitiveBase<Point2D<double>>;
template class GeoPrimitive<Point2D<double>, 4>;
template class Rectangle<Point2D<double>>;

// Arrays of three coordinates and space points have one layout.
static_assert(sizeof(Point3D<float>) == 3 * sizeof(float));
static_assert(sizeof(Point3D<double>) == 3 * sizeof(double));

}  // namespace GTL
