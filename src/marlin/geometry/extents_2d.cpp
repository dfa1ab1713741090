// SPDX-License-Identifier: MIT
#include <marlin/geometry/extents_2d.h>

namespace GTL {

template class Extents2D<float>;
template class Extents2D<double>;

}  // namespace GTL
