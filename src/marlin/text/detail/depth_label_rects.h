// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/geometry/point_2d.h>
#include <marlin/geometry/rectangle.h>
#include <marlin/geometry/vector_2d.h>
#include <marlin/records/depth_label_info.h>

#include <string>

namespace MARLINSUITE::detail {

using LabelRect = GTL::Rectangle<GTL::Point2D<double>>;
using LabelVector = GTL::Vector2D<double>;

// Where the two parts of a depth label lie. `TextRectComp` measures them; the rules are here.

/// The label shows its number in one piece, so the decimal part has no rectangle of its own.
[[nodiscard]] bool IsMerged(const DepthLabelInfo& dli) noexcept;
/// The decimal point stays with the integer part.
[[nodiscard]] bool KeepsPoint(const DepthLabelInfo& dli) noexcept;
/// Where the number is split; npos when it is measured in one piece.
[[nodiscard]] std::size_t SplitPoint(const DepthLabelInfo& dli, const std::string& number) noexcept;

/// Decimals of that size beside the integers, on their lower edge.
[[nodiscard]] LabelRect DecimalsAtFullSize(const DepthLabelInfo& dli, const LabelRect& integers,
                                           const LabelVector& size) noexcept;
/// Decimals of that size a gap away from the integers, raised or lowered.
[[nodiscard]] LabelRect DecimalsSetApart(const DepthLabelInfo& dli, const LabelRect& integers,
                                         const LabelVector& size) noexcept;
/// Moves both parts so that the point that the label's placement names takes the place of the
/// integers' corner 0. The integers of a merged label take in the decimals, whose rectangle is
/// then the default one.
void OffsetLabels(const DepthLabelInfo& dli, LabelRect& integers, LabelRect& decimals);

}  // namespace MARLINSUITE::detail
