// SPDX-License-Identifier: MIT
#pragma once

namespace GTL::CLS {

/// The position of a point or a box relative to a box or a shape. The numbers are part of the
/// interface.
enum CLASSIFICATION : int {
    NONE = 0,      ///< one of the two is empty
    INSIDE = 1,    ///< wholly within; its boundary belongs to it
    OUTSIDE = 2,   ///< wholly outside
    OVERLAP = 10,  ///< the boxes meet, and the one given reaches beyond
};

}  // namespace GTL::CLS
