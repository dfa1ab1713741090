// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

class CWnd;

/// Shows the part with the custom colors from the start.
inline constexpr unsigned long CC_FULLOPEN = 0x2;

/// The color that a color dialog starts with, and afterwards the chosen one.
struct CHOOSECOLORA {
    COLORREF rgbResult = 0;
    unsigned long Flags = 0;
};

/// The platform's dialog that asks for a color.
class MARLIN_API CColorDialog {
public:
    CHOOSECOLORA m_cc;

    explicit CColorDialog(COLORREF color = 0, unsigned long flags = 0,
                          CWnd* parent = nullptr) noexcept
        : m_cc{color, flags}, m_Parent(parent) {}

    /// `IDOK` when a color was chosen, which is then in `m_cc.rgbResult`, else `IDCANCEL`.
    int DoModal();

private:
    CWnd* m_Parent;
};
