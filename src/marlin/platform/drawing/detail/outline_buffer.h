// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>
#include <vector>

namespace PLATFORM::detail {

/// The points that an outline of FreeType leads to. The integers of its fields are signed before
/// version 2.13.3 and unsigned from then on, so their types are taken from `Outline`.
template <class Outline>
struct OutlineBuffer {
    template <class Pointer>
    using Pointee = std::remove_pointer_t<Pointer>;

    std::vector<Pointee<decltype(Outline::points)>> Points;
    std::vector<Pointee<decltype(Outline::tags)>> Tags;
    std::vector<Pointee<decltype(Outline::contours)>> Ends;

    void Add(const typename decltype(Points)::value_type& point, int tag) {
        Points.push_back(point);
        Tags.push_back(static_cast<typename decltype(Tags)::value_type>(tag));
    }
    /// The last point ends a contour.
    void EndContour() {
        Ends.push_back(static_cast<typename decltype(Ends)::value_type>(Points.size() - 1));
    }
    /// Good until the next change.
    [[nodiscard]] Outline Get() noexcept {
        Outline outline{};
        outline.n_contours = static_cast<decltype(outline.n_contours)>(Ends.size());
        outline.n_points = static_cast<decltype(outline.n_points)>(Points.size());
        outline.points = Points.data();
        outline.tags = Tags.data();
        outline.contours = Ends.data();
        return outline;
    }
};

}  // namespace PLATFORM::detail
