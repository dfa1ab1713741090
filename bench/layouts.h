// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <memory>

#include <bench/measured_style.h>
#include <fontconfig/fontconfig.h>
#include <pango/pangofc-fontmap.h>
#include <pango/pangoft2.h>

namespace BENCH {

/// Qt without a display; there while fonts of Qt are used.
class QtApplication {
public:
    QtApplication(int& argc, char** argv)
        : m_Headless(qputenv("QT_QPA_PLATFORM", "offscreen")), m_Application(argc, argv) {}

private:
    bool m_Headless;
    QGuiApplication m_Application;
};

/// The font of the style in Qt.
class QtFont {
public:
    explicit QtFont(const MeasuredStyle& style) {
        const int id = QFontDatabase::addApplicationFont(QString::fromStdString(style.Path()));
        Require(id >= 0, "QFontDatabase::addApplicationFont");
        m_Font.setFamily(QFontDatabase::applicationFontFamilies(id).value(0));
        m_Font.setPixelSize(MeasuredStyle::EmSize);
        m_Font.setHintingPreference(QFont::PreferNoHinting);
    }

    /// With all that shaping does, or simple advances alone.
    [[nodiscard]] QFont Font(bool shaped) const {
        QFont font = m_Font;
        if (!shaped) {
            font.setKerning(false);
            font.setStyleStrategy(QFont::PreferNoShaping);
        }
        return font;
    }

private:
    QFont m_Font;
};

/// A layout of Pango whose font map knows the file of the style alone.
class PangoText {
public:
    explicit PangoText(const MeasuredStyle& style) : m_Map(pango_ft2_font_map_new()) {
        FcConfig* files = FcConfigCreate();
        Require(FcConfigAppFontAddFile(
                    files, reinterpret_cast<const FcChar8*>(style.Path().c_str())) == FcTrue,
                "FcConfigAppFontAddFile");
        pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(m_Map.get()), files);
        FcConfigDestroy(files);
        m_Context.reset(pango_font_map_create_context(m_Map.get()));
        pango_context_set_round_glyph_positions(m_Context.get(), FALSE);
        m_Layout.reset(pango_layout_new(m_Context.get()));
        PangoFontDescription* font = pango_font_description_from_string(MeasuredStyle::Face);
        pango_font_description_set_absolute_size(font, MeasuredStyle::EmSize * PANGO_SCALE);
        pango_layout_set_font_description(m_Layout.get(), font);
        pango_font_description_free(font);
    }

    void WrapAt(int pixels) { pango_layout_set_width(m_Layout.get(), pixels * PANGO_SCALE); }

    /// In pixels.
    [[nodiscard]] double Width(std::string_view text) {
        pango_layout_set_text(m_Layout.get(), text.data(), static_cast<int>(text.size()));
        PangoRectangle box;
        pango_layout_get_extents(m_Layout.get(), nullptr, &box);
        return static_cast<double>(box.width) / PANGO_SCALE;
    }
    [[nodiscard]] int Lines() { return pango_layout_get_line_count(m_Layout.get()); }

private:
    struct Unref {
        void operator()(void* object) const noexcept { g_object_unref(object); }
    };

    std::unique_ptr<PangoFontMap, Unref> m_Map;
    std::unique_ptr<PangoContext, Unref> m_Context;
    std::unique_ptr<PangoLayout, Unref> m_Layout;
};

}  // namespace BENCH
