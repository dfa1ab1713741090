// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/fonts/fonts.h>

#include <string_view>

/// A font selected into a context of the display for the lifetime of a scope.
class MeasuredFont {
public:
    MeasuredFont(const char* face, int height, int weight = FW_NORMAL, bool italic = false,
                 int mapMode = MM_HIMETRIC) {
        m_DC.CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
        m_DC.SetMapMode(mapMode);
        m_Font.CreateFontA(height, 0, 0, 0, weight, static_cast<unsigned char>(italic), 0, 0,
                           ANSI_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY,
                           DEFAULT_PITCH, face);
        m_DC.SelectObject(&m_Font);
    }

    [[nodiscard]] CDC& DC() { return m_DC; }
    [[nodiscard]] CSize Extent(std::string_view text) const {
        CSize size(-1, -1);
        GetTextExtentPoint32A(m_DC, text.data(), static_cast<int>(text.size()), &size);
        return size;
    }
    [[nodiscard]] OUTLINETEXTMETRICA Metrics() const {
        OUTLINETEXTMETRICA metrics;
        m_DC.GetOutlineTextMetricsA(sizeof metrics, &metrics);
        return metrics;
    }

private:
    // The context ends before the font does.
    CFont m_Font;
    CDC m_DC;
};
