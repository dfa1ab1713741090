// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_face.h>
#include <marlin/platform/fonts/detail/free_type.h>
#include <marlin/platform/kernel/detail/file.h>
#include <marlin/platform/text/code_page.h>

#include <cstddef>

namespace PLATFORM {

namespace {

constexpr std::size_t LargestFile = std::size_t{1} << 28U;

bool ReadFile(const std::string& path, std::vector<unsigned char>& bytes) {
    std::string read;
    // Not waiting keeps a pipe of that name from holding the caller.
    if (detail::ReadWhole(path, LargestFile, read, detail::File::WAITING::DO_NOT_WAIT) != 0) {
        return false;
    }
    bytes.assign(read.begin(), read.end());
    return !bytes.empty();
}

std::string TextOrEmpty(const char* text) {
    return text ? text : "";
}

}  // namespace

FT_Library FreeType() noexcept {
    static const FT_Library library = [] {
        FT_Library made = nullptr;
        return FT_Init_FreeType(&made) == 0 ? made : nullptr;
    }();
    return library;
}

void FontFace::Closer::operator()(FT_FaceRec_* face) const noexcept {
    FT_Done_Face(face);
}

std::unique_ptr<FontFace> FontFace::Load(const std::string& path, int index) {
    auto face = std::make_unique<FontFace>(Key{});
    if (!ReadFile(path, face->m_Bytes) || !face->Open(index) || !face->ReadMetrics()) {
        return nullptr;
    }
    face->ReadAdvances();
    return face;
}

bool FontFace::Open(int index) {
    FT_Face opened = nullptr;
    if (!FreeType() ||
        FT_New_Memory_Face(FreeType(), m_Bytes.data(), static_cast<FT_Long>(m_Bytes.size()), index,
                           &opened) != 0) {
        return false;
    }
    m_Face.reset(opened);
    m_Family = TextOrEmpty(opened->family_name);
    m_Style = TextOrEmpty(opened->style_name);
    return FT_IS_SCALABLE(opened) && opened->units_per_EM > 0;
}

unsigned int FontFace::GlyphOf(char byte) const noexcept {
    FT_Face face = m_Face.get();
    const auto code = static_cast<FT_ULong>(CodePointOf(static_cast<unsigned char>(byte)));
    if (!face->charmap || face->charmap->encoding != FT_ENCODING_MS_SYMBOL) {
        return FT_Get_Char_Index(face, code);
    }
    // Symbol faces keep their glyphs at the bytes, in a private area.
    const auto symbol = static_cast<FT_ULong>(static_cast<unsigned char>(byte));
    const unsigned int glyph = FT_Get_Char_Index(face, 0xF000UL | symbol);
    return glyph != 0 ? glyph : FT_Get_Char_Index(face, symbol);
}

void FontFace::ReadAdvances() noexcept {
    for (std::size_t i = 0; i < m_Advances.size(); ++i) {
        FT_Fixed advance = 0;
        const unsigned int glyph = GlyphOf(static_cast<char>(i));
        const bool read = FT_Get_Advance(m_Face.get(), glyph, FT_LOAD_NO_SCALE, &advance) == 0;
        m_Advances[i] = read && advance > 0 ? static_cast<int>(advance) : 0;
    }
}

long long FontFace::Advance(std::string_view text) const noexcept {
    long long sum = 0;
    for (const char byte : text) {
        sum += m_Advances[static_cast<unsigned char>(byte)];
    }
    return sum;
}

const FT_Outline_* FontFace::Outline(char byte) const noexcept {
    FT_Face face = m_Face.get();
    const bool loaded = FT_Load_Glyph(face, GlyphOf(byte), FT_LOAD_NO_SCALE) == 0;
    return loaded && face->glyph->format == FT_GLYPH_FORMAT_OUTLINE ? &face->glyph->outline
                                                                    : nullptr;
}

}  // namespace PLATFORM
