// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_3d.h>

namespace GTL {

template class Extents3D<float>;
template class Extents3D<double>;

}  // namespace GTL
