// SPDX-License-Identifier: MIT
#include <marlin/platform/text/code_page.h>
#include <marlin/text/detail/text_wrapper.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

namespace MARLINSUITE::detail {

namespace {

constexpr std::string_view paragraphMark = "\\P";
constexpr std::string_view breakCharacters = " -";

// Up to and including the next space or hyphen.
std::string_view FirstWord(std::string_view text) {
    const auto end = text.find_first_of(breakCharacters);
    return text.substr(0, end == std::string_view::npos ? end : end + 1);
}

std::string_view WithoutTrailingSpaces(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view WithoutLeadingSpaces(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

// A character of UTF-8 begins with a byte that continues no other.
std::string_view FirstCharacter(std::string_view utf8) {
    const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    const auto end = std::find_if_not(utf8.begin() + 1, utf8.end(), continues);
    return {utf8.begin(), end};
}

}  // namespace

// In UTF-8, so that the pieces of a text have the characters that they have in the whole.
void TextWrapper::Wrap(std::string_view text) {
    if (PLATFORM::IsUtf8(text)) {
        WrapUtf8(text);
        return;
    }
    const std::size_t before = m_Lines.size();
    WrapUtf8(PLATFORM::ToUtf8(text));
    for (std::string& line : std::span(m_Lines).subspan(before)) {
        line = PLATFORM::FromUtf8(line);
    }
}

void TextWrapper::WrapUtf8(std::string_view text) {
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto end = rest.find(paragraphMark);
        WrapParagraph(rest.substr(0, end));
        rest = end == std::string_view::npos ? std::string_view()
                                             : rest.substr(end + paragraphMark.size());
    }
    if (text.ends_with(paragraphMark)) {
        m_Lines.emplace_back();
    }
}

void TextWrapper::AddLine(std::string_view line) {
    m_Last = m_Measure.Extent(line);
    m_MaxWidth = std::max(m_MaxWidth, m_Last.cx);
    m_Lines.emplace_back(line);
}

void TextWrapper::WrapParagraph(std::string_view paragraph) {
    const SIZE whole = m_Measure.Extent(paragraph);
    const double ratio =
        whole.cy != 0 ? static_cast<double>(m_Measure.Height()) / static_cast<double>(whole.cy)
                      : 1.0;
    // Written so, a width that is not a number breaks nothing.
    if (!(std::ceil(m_Width / ratio) < whole.cx)) {
        AddLine(paragraph);
        return;
    }
    m_Rest = paragraph;
    m_InBrokenWord = false;
    WrapWords();
    const std::string_view last = WithoutTrailingSpaces(m_Line);
    if (!last.empty()) {
        AddLine(last);
    }
    m_Line.clear();
    m_LineWidth = 0;
}

// The pieces of a line are measured one by one, so their widths, each rounded, are summed up.
void TextWrapper::WrapWords() {
    while (!m_Rest.empty()) {
        m_InBrokenWord =
            m_InBrokenWord && breakCharacters.find(m_Rest.front()) == std::string_view::npos;
        const std::string_view piece = m_InBrokenWord ? FirstCharacter(m_Rest) : FirstWord(m_Rest);
        const int width = WidthOf(piece);
        if (m_LineWidth + width <= m_Width) {
            m_Line += piece;
            m_LineWidth += width;
            m_Rest.remove_prefix(piece.size());
        } else if (!m_Line.empty()) {
            EndLine();
        } else {
            BreakWord();
        }
    }
}

// The first character is taken even where it alone is wider than the line.
void TextWrapper::BreakWord() {
    do {
        const std::string_view character = FirstCharacter(m_Rest);
        m_LineWidth += WidthOf(character);
        m_Line += character;
        m_Rest.remove_prefix(character.size());
    } while (!m_Rest.empty() && m_LineWidth + WidthOf(FirstCharacter(m_Rest)) < m_Width);
    EndLine();
    m_InBrokenWord = true;
}

void TextWrapper::EndLine() {
    AddLine(WithoutTrailingSpaces(m_Line));
    m_Line.clear();
    m_LineWidth = 0;
    m_Rest = WithoutLeadingSpaces(m_Rest);
}

}  // namespace MARLINSUITE::detail
