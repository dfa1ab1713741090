// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_gdi_object.h>

/// A brush of one color.
class MARLIN_API CBrush : public CGdiObject {
public:
    explicit CBrush(COLORREF color);
};
