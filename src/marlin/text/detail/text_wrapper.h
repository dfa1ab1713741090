// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/text/detail/text_measure.h>

#include <string>
#include <string_view>
#include <vector>

namespace MARLINSUITE::detail {

/// Breaks a text into lines of at most a width, in logical units: at each "\P", after spaces and
/// hyphens, and inside words that are wider than a line. Serves one text.
class TextWrapper {
public:
    TextWrapper(const TextMeasure& measure, double width, std::vector<std::string>& lines)
        : m_Measure(measure), m_Width(width), m_Lines(lines) {}

    /// Appends the lines of the text.
    void Wrap(std::string_view text);

    [[nodiscard]] int MaxWidth() const noexcept { return m_MaxWidth; }
    /// The height of the line that was measured last.
    [[nodiscard]] int LineHeight() const noexcept { return m_Last.cy; }

private:
    void WrapUtf8(std::string_view text);
    void WrapParagraph(std::string_view paragraph);
    void WrapWords();
    void BreakWord();
    void EndLine();
    void AddLine(std::string_view line);
    [[nodiscard]] int WidthOf(std::string_view piece) const noexcept {
        return m_Measure.Extent(piece).cx;
    }

    const TextMeasure& m_Measure;
    double m_Width;
    std::vector<std::string>& m_Lines;
    int m_MaxWidth = 0;
    SIZE m_Last{};

    // The line being filled, and the rest of the paragraph.
    std::string m_Line;
    double m_LineWidth = 0;
    std::string_view m_Rest;
    bool m_InBrokenWord = false;
};

}  // namespace MARLINSUITE::detail
