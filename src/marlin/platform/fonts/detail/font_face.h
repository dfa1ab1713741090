// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/detail/face_metrics.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

struct FT_LibraryRec_;
struct FT_FaceRec_;
struct FT_Outline_;

namespace PLATFORM::detail {

/// The process's instance of FreeType; null when it does not start. Callers hold the lock of the
/// font store, here and wherever they open faces or read glyphs.
[[nodiscard]] FT_LibraryRec_* FreeType() noexcept;

/// The content of a font file, shared by its faces.
using FontBytes = std::shared_ptr<const std::string>;

/// Reads a file as a whole, so that one that changes later does no harm. Null where it cannot be
/// read, is empty or larger than 256 MiB.
[[nodiscard]] FontBytes ReadFontFile(const std::string& path);

/// One face of a font file, opened by FreeType at the request of the font store and asked by
/// `SizedFont`. Its metrics and the advances of Windows-1252 are read once; other advances are read
/// when they are asked for, under the store's lock, which callers must not hold then. Outlines need
/// that lock. Characters are those of `PLATFORM::ToUtf8`.
class FontFace {
    struct Key {};

public:
    explicit FontFace(Key) noexcept {}
    /// Null where the bytes hold no sound outline face of that number.
    [[nodiscard]] static std::unique_ptr<const FontFace> Open(FontBytes bytes, int index);

    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;
    ~FontFace() = default;

    /// All lengths are in design units.
    [[nodiscard]] const OUTLINETEXTMETRICA& Metrics() const noexcept { return m_Metrics; }
    /// The sum of the advances of the text's characters, in design units.
    [[nodiscard]] long long Advance(std::string_view text) const noexcept;
    [[nodiscard]] int Advance(char32_t codePoint) const noexcept;

    /// The outline of a character's glyph in design units, the caller's until the next call; null
    /// for a glyph that cannot be read.
    [[nodiscard]] FT_Outline_* Outline(char32_t codePoint) const noexcept;

private:
    struct Closer {
        void operator()(FT_FaceRec_* face) const noexcept;
    };

    void ReadAdvances() noexcept;
    [[nodiscard]] int ReadAdvance(char32_t codePoint) const noexcept;
    [[nodiscard]] unsigned int GlyphOf(char32_t codePoint) const noexcept;

    FontBytes m_Bytes;
    std::unique_ptr<FT_FaceRec_, Closer> m_Face;  // reads the bytes as long as it lives
    OUTLINETEXTMETRICA m_Metrics;
    std::array<int, 256> m_Advances{};  // of the bytes of Windows-1252
};

}  // namespace PLATFORM::detail
