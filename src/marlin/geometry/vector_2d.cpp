// SPDX-License-Identifier: MIT
#include <marlin/geometry/vector_2d.h>

namespace GTL {

template class Vector2D<int>;
template class Vector2D<float>;
template class Vector2D<double>;

}  // namespace GTL
