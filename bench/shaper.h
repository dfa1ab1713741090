// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

#include <bench/measured_style.h>
#include <harfbuzz/hb-ot.h>
#include <harfbuzz/hb.h>

namespace BENCH {

/// HarfBuzz with a font and a buffer that are kept from text to text.
class Shaper {
public:
    /// A length of 1 is a thousandth of a pixel, as in our logical units.
    static constexpr double UnitsPerPixel = 1000;

    Shaper(const MeasuredStyle& style, double size, bool kerned)
        : m_Blob(hb_blob_create_from_file(style.Path().c_str())),
          m_Face(hb_face_create(m_Blob.get(), static_cast<unsigned int>(style.Index()))),
          m_Font(hb_font_create(m_Face.get())),
          m_Buffer(hb_buffer_create()) {
        const int scale = static_cast<int>(size * UnitsPerPixel);
        hb_font_set_scale(m_Font.get(), scale, scale);
        hb_ot_font_set_funcs(m_Font.get());
        hb_font_make_immutable(m_Font.get());
        m_FeatureCount = kerned ? 0 : static_cast<unsigned int>(m_Features.size());
    }

    /// In pixels.
    [[nodiscard]] double Width(std::string_view text) {
        hb_buffer_t* buffer = m_Buffer.get();
        const int length = static_cast<int>(text.size());
        hb_buffer_clear_contents(buffer);
        hb_buffer_set_direction(buffer, HB_DIRECTION_LTR);
        hb_buffer_set_script(buffer, HB_SCRIPT_LATIN);
        hb_buffer_set_language(buffer, m_Language);
        hb_buffer_add_latin1(buffer, reinterpret_cast<const std::uint8_t*>(text.data()), length, 0,
                             length);
        hb_shape(m_Font.get(), buffer, m_Features.data(), m_FeatureCount);
        unsigned int count = 0;
        const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer, &count);
        long width = 0;
        for (unsigned int i = 0; i < count; ++i) {
            width += positions[i].x_advance;
        }
        return static_cast<double>(width) / UnitsPerPixel;
    }

private:
    template <auto Destroy>
    struct Destroyer {
        template <class Object>
        void operator()(Object* object) const noexcept {
            Destroy(object);
        }
    };
    static constexpr hb_feature_t Off(hb_tag_t tag) {
        return {tag, 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
    }

    std::unique_ptr<hb_blob_t, Destroyer<hb_blob_destroy>> m_Blob;
    std::unique_ptr<hb_face_t, Destroyer<hb_face_destroy>> m_Face;
    std::unique_ptr<hb_font_t, Destroyer<hb_font_destroy>> m_Font;
    std::unique_ptr<hb_buffer_t, Destroyer<hb_buffer_destroy>> m_Buffer;
    hb_language_t m_Language = hb_language_from_string("en", -1);
    std::array<hb_feature_t, 2> m_Features{Off(HB_TAG('k', 'e', 'r', 'n')),
                                           Off(HB_TAG('l', 'i', 'g', 'a'))};
    unsigned int m_FeatureCount = 0;
};

}  // namespace BENCH
