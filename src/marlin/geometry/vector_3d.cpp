// SPDX-License-Identifier: MIT
#include <marlin/geometry/vector_3d.h>

namespace GTL {

template class Vector3D<float>;
template class Vector3D<double>;

}  // namespace GTL
