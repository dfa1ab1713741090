// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct FT_FaceRec_;
struct FT_Outline_;

namespace PLATFORM {

/// The numbers of a face that do not depend on the size; lengths in design units.
struct FaceMetrics {
    int UnitsPerEm = 0;
    /// The cell above and below the baseline, both counted positive; their sum is above 0.
    int CellAscent = 0;
    int CellDescent = 0;
    int ExternalLeading = 0;
    int TypoAscender = 0;
    int TypoDescender = 0;
    int TypoLineGap = 0;
    int HheaAscender = 0;
    int HheaDescender = 0;
    int HheaLineGap = 0;
    int AverageWidth = 0;
    int MaxWidth = 0;
    int Weight = 0;
    int Selection = 0;
    int EmbeddingRights = 0;
    int CapHeight = 0;
    int XHeight = 0;
    int SmallestPixels = 0;
    int SlopeRise = 0;
    int SlopeRun = 0;
    /// Tenths of a degree, counter-clockwise.
    int ItalicAngle = 0;
    int Box[4] = {};        // left, top, right, bottom
    int Subscript[4] = {};  // width, height, offset x, offset y
    int Superscript[4] = {};
    int StrikeoutSize = 0;
    int StrikeoutPosition = 0;
    int UnderlineSize = 0;
    /// Of the line's middle to the baseline, below it negative.
    int UnderlinePosition = 0;
    bool FixedPitch = false;
    std::array<unsigned char, 10> Panose{};
};

/// One face of a font file, read as a whole into memory, so that a file that changes later does
/// no harm. Metrics and advances may be read by any thread; glyphs by one at a time.
class FontFace {
    struct Key {};

public:
    explicit FontFace(Key) noexcept {}
    /// Null when the file cannot be read or holds no sound outline face of that number.
    [[nodiscard]] static std::unique_ptr<FontFace> Load(const std::string& path, int index);

    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;
    ~FontFace() = default;

    [[nodiscard]] const FaceMetrics& Metrics() const noexcept { return m_Metrics; }
    /// The sum of the advances of the text's bytes.
    [[nodiscard]] long long Advance(std::string_view text) const noexcept;
    [[nodiscard]] const std::string& Family() const noexcept { return m_Family; }
    [[nodiscard]] const std::string& Style() const noexcept { return m_Style; }

    /// The outline of a byte's glyph in design units, good until the next call; null for a
    /// glyph that cannot be read.
    [[nodiscard]] const FT_Outline_* Outline(char byte) const noexcept;

private:
    struct Closer {
        void operator()(FT_FaceRec_* face) const noexcept;
    };

    bool Open(int index);
    bool ReadMetrics() noexcept;
    void ReadAdvances() noexcept;
    [[nodiscard]] unsigned int GlyphOf(char byte) const noexcept;

    std::vector<unsigned char> m_Bytes;
    std::unique_ptr<FT_FaceRec_, Closer> m_Face;
    FaceMetrics m_Metrics;
    std::array<int, 256> m_Advances{};
    std::string m_Family;
    std::string m_Style;
};

}  // namespace PLATFORM
