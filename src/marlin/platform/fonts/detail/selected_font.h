// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/detail/sized_font.h>

namespace PLATFORM::detail {

/// The font of a context, ready to measure; empty when it cannot.
struct SelectedFont {
    const FontRecord* Record = nullptr;
    SizedFont Sized;

    [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(Sized); }
};

/// Empty also for a wrong handle.
[[nodiscard]] SelectedFont FontOf(HDC dc);

}  // namespace PLATFORM::detail
