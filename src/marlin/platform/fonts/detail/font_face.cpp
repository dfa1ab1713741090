// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/platform/fonts/detail/font_face.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/kernel/detail/file.h>
#include <marlin/platform/text/code_page.h>

#include <cstddef>
#include <mutex>
#include <utility>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H
#include FT_OUTLINE_H

namespace PLATFORM::detail {

namespace {

constexpr std::size_t LargestFile = std::size_t{1} << 28U;

struct Library {
    FT_Library Value = nullptr;

    Library() noexcept {
        if (FT_Init_FreeType(&Value) != 0) {
            Value = nullptr;
        }
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { FT_Done_FreeType(Value); }
};

}  // namespace

FT_LibraryRec_* FreeType() noexcept {
    return MARLINSUITE::detail::ProcessObject<Library>().Value;
}

FontBytes ReadFontFile(const std::string& path) {
    auto bytes = std::make_shared<std::string>();
    // Not waiting keeps a pipe of that name from holding the caller.
    const bool read = ReadWhole(path, LargestFile, *bytes, File::WAITING::DO_NOT_WAIT) == 0;
    bytes->shrink_to_fit();  // reading grew it in steps, and faces keep it for long
    return read && !bytes->empty() ? bytes : nullptr;
}

void FontFace::Closer::operator()(FT_FaceRec_* face) const noexcept {
    FT_Done_Face(face);
}

std::unique_ptr<const FontFace> FontFace::Open(FontBytes bytes, int index) {
    FT_Face opened = nullptr;
    if (!FreeType() ||
        FT_New_Memory_Face(FreeType(), reinterpret_cast<const FT_Byte*>(bytes->data()),
                           static_cast<FT_Long>(bytes->size()), index, &opened) != 0) {
        return nullptr;
    }
    auto face = std::make_unique<FontFace>(Key{});
    face->m_Bytes = std::move(bytes);
    face->m_Face.reset(opened);
    if (!FT_IS_SCALABLE(opened) || opened->units_per_EM == 0 ||
        !ReadMetrics(opened, face->m_Metrics)) {
        return nullptr;
    }
    face->ReadAdvances();
    return face;
}

unsigned int FontFace::GlyphOf(char32_t codePoint) const noexcept {
    FT_Face face = m_Face.get();
    if (!face->charmap || face->charmap->encoding != FT_ENCODING_MS_SYMBOL) {
        return FT_Get_Char_Index(face, codePoint);
    }
    // Symbol faces keep their glyphs at the bytes, in a private area.
    const auto byte = ByteOf(codePoint);
    const unsigned int glyph = byte ? FT_Get_Char_Index(face, 0xF000UL | *byte) : 0;
    return glyph != 0 ? glyph : FT_Get_Char_Index(face, byte ? *byte : codePoint);
}

// Unscaled, because hinting and the pixels of a size would make widths depend on the display.
int FontFace::ReadAdvance(char32_t codePoint) const noexcept {
    FT_Fixed advance = 0;
    const bool read =
        FT_Get_Advance(m_Face.get(), GlyphOf(codePoint), FT_LOAD_NO_SCALE, &advance) == 0;
    return read && advance > 0 ? static_cast<int>(advance) : 0;
}

void FontFace::ReadAdvances() noexcept {
    for (std::size_t i = 0; i < m_Advances.size(); ++i) {
        m_Advances[i] = ReadAdvance(CodePointOf(static_cast<unsigned char>(i)));
    }
}

int FontFace::Advance(char32_t codePoint) const noexcept {
    if (const auto byte = ByteOf(codePoint)) {
        return m_Advances[*byte];
    }
    const std::scoped_lock lock(FontStore::Lock());
    return ReadAdvance(codePoint);
}

// Nearly all texts are ASCII, so it is their sum that is ready first.
long long FontFace::Advance(std::string_view text) const noexcept {
    long long sum = 0;
    unsigned int bits = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        sum += m_Advances[byte];
        bits |= byte;
    }
    if (bits < 0x80 || !IsUtf8(text)) {
        return sum;
    }
    for (sum = 0; !text.empty();) {
        sum += Advance(TakeCodePoint(text));
    }
    return sum;
}

FT_Outline_* FontFace::Outline(char32_t codePoint) const noexcept {
    FT_Face face = m_Face.get();
    const bool loaded = FT_Load_Glyph(face, GlyphOf(codePoint), FT_LOAD_NO_SCALE) == 0;
    return loaded && face->glyph->format == FT_GLYPH_FORMAT_OUTLINE ? &face->glyph->outline
                                                                    : nullptr;
}

}  // namespace PLATFORM::detail
