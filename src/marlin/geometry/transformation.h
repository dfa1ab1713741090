// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

namespace GTL {

/// Moves points; the base of every transformation. Its one virtual operation stays the first.
/// Not to be owned or deleted through this base.
template <class P>
class MARLIN_API Transformation {
public:
    /// Rewrites the point in place.
    virtual void Apply(P& point) const = 0;

protected:
    Transformation() = default;
    Transformation(const Transformation&) = default;
    Transformation& operator=(const Transformation&) = default;
    ~Transformation() = default;
};

}  // namespace GTL
