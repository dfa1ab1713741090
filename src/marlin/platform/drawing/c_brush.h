// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_gdi_object.h>

/// A brush of one color.
class MARLIN_API CBrush : public CGdiObject {
public:
    CBrush() noexcept = default;
    explicit CBrush(COLORREF color) { CreateSolidBrush(color); }

    /// Null when the handle is not that of a brush.
    [[nodiscard]] static CBrush* FromHandle(HBRUSH handle) noexcept;
    [[nodiscard]] operator HBRUSH() const noexcept;

    bool CreateSolidBrush(COLORREF color);
};
