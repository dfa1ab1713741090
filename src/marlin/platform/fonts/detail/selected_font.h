// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/detail/sized_font.h>

namespace PLATFORM::detail {

/// The font of a context, which the framework's font calls measure and paint with; empty when it
/// cannot be measured.
struct SelectedFont {
    const FontRecord* Record = nullptr;
    SizedFont Sized;

    [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(Sized); }
};

/// Empty also for a wrong handle.
[[nodiscard]] SelectedFont FontOf(HDC dc);

}  // namespace PLATFORM::detail
