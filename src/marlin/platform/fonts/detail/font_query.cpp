// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/platform/fonts/detail/font_query.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <memory>
#include <tuple>

#include <fontconfig/fontconfig.h>

namespace PLATFORM::detail {

namespace {

template <auto Destroy>
struct Destroyer {
    template <typename Object>
    void operator()(Object* object) const noexcept {
        Destroy(object);
    }
};

using Pattern = std::unique_ptr<FcPattern, Destroyer<FcPatternDestroy>>;
using FontSet = std::unique_ptr<FcFontSet, Destroyer<FcFontSetDestroy>>;
using ObjectSet = std::unique_ptr<FcObjectSet, Destroyer<FcObjectSetDestroy>>;
using CharSet = std::unique_ptr<FcCharSet, Destroyer<FcCharSetDestroy>>;

const FcChar8* Bytes(const std::string& text) noexcept {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

std::string TextAt(FcPattern* pattern, const char* object, int index) {
    FcChar8* text = nullptr;
    const bool found = FcPatternGetString(pattern, object, index, &text) == FcResultMatch;
    return found ? reinterpret_cast<const char*>(text) : "";
}

// The English one of the names that a font has in several languages, or else the first.
std::string NameOf(FcPattern* pattern, const char* names, const char* languages) {
    for (int i = 0;; ++i) {
        const std::string language = TextAt(pattern, languages, i);
        if (language.empty()) {
            return TextAt(pattern, names, 0);
        }
        if (language == "en") {
            return TextAt(pattern, names, i);
        }
    }
}

int NumberOf(FcPattern* pattern, const char* object, int otherwise) noexcept {
    int number = otherwise;
    return FcPatternGetInteger(pattern, object, 0, &number) == FcResultMatch ? number : otherwise;
}

bool FlagOf(FcPattern* pattern, const char* object) noexcept {
    FcBool flag = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &flag) == FcResultMatch && flag == FcTrue;
}

bool HasFamily(FcPattern* pattern, const std::string& family) {
    std::string name;
    for (int i = 0; !(name = TextAt(pattern, FC_FAMILY, i)).empty(); ++i) {
        if (MARLINSUITE::EqualIgnoringCase(name, family)) {
            return true;
        }
    }
    return false;
}

// The language is fixed because it would come from the locale, and with it other substitutes.
Pattern PatternOf(const FontWish& wish, const std::string& family) {
    Pattern pattern(FcPatternCreate());
    if (!pattern) {
        return pattern;
    }
    if (!family.empty()) {
        FcPatternAddString(pattern.get(), FC_FAMILY, Bytes(family));
    }
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(wish.Weight));
    FcPatternAddInteger(pattern.get(), FC_SLANT, wish.Italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddString(pattern.get(), FC_LANG, reinterpret_cast<const FcChar8*>("en"));
    // A variable font would have to be set to the weight before each use.
    FcPatternAddBool(pattern.get(), FC_VARIABLE, FcFalse);
    // An outline font rather than a bitmap font of that name, which cannot be measured.
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    return pattern;
}

InstalledFont FontOf(FcPattern* pattern) {
    InstalledFont font;
    font.Family = NameOf(pattern, FC_FAMILY, FC_FAMILYLANG);
    font.Style = NameOf(pattern, FC_STYLE, FC_STYLELANG);
    font.Weight = FcWeightToOpenType(NumberOf(pattern, FC_WEIGHT, FC_WEIGHT_NORMAL));
    font.Italic = NumberOf(pattern, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN;
    font.FixedPitch = NumberOf(pattern, FC_SPACING, FC_PROPORTIONAL) >= FC_MONO;
    return font;
}

// All outline fonts that hold the letter A: fonts of symbols would fill a list of names in vain.
FontSet ListLatin(FcConfig* configuration) {
    const Pattern wanted(FcPatternCreate());
    const CharSet latin(FcCharSetCreate());
    const ObjectSet objects(FcObjectSetBuild(FC_FAMILY, FC_FAMILYLANG, FC_STYLE, FC_STYLELANG,
                                             FC_WEIGHT, FC_SLANT, FC_SPACING, nullptr));
    if (!wanted || !latin || !objects) {
        return nullptr;
    }
    FcCharSetAddChar(latin.get(), U'A');
    FcPatternAddCharSet(wanted.get(), FC_CHARSET, latin.get());
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    FcPatternAddBool(wanted.get(), FC_VARIABLE, FcFalse);
    return FontSet(FcFontList(configuration, wanted.get(), objects.get()));
}

bool ComesBefore(const InstalledFont& a, const InstalledFont& b) noexcept {
    const int order = MARLINSUITE::CompareIgnoringCase(a.Family, b.Family);
    return order != 0
               ? order < 0
               : std::tie(a.Weight, a.Italic, a.Style) < std::tie(b.Weight, b.Italic, b.Style);
}

}  // namespace

void FontQuery::Deleter::operator()(FcConfig* configuration) const noexcept {
    FcConfigDestroy(configuration);
}

void FontQuery::SetFolders(const std::vector<std::string>& folders) {
    m_Folders = folders;
    m_Configuration.reset();
}

bool FontQuery::Refresh() {
    if (!m_Folders.empty()) {
        m_Configuration.reset();  // reads the folders again
        return true;
    }
    return FcConfigUptoDate(nullptr) == FcFalse && FcInitReinitialize() == FcTrue;
}

bool FontQuery::Prepare() {
    if (m_Folders.empty()) {
        return FcInit() == FcTrue;
    }
    if (m_Configuration) {
        return true;
    }
    // The system's rules about names, but none of its fonts.
    m_Configuration.reset(FcInitLoadConfig());
    for (std::size_t i = 0; m_Configuration && i < m_Folders.size(); ++i) {
        FcConfigAppFontAddDir(m_Configuration.get(), Bytes(m_Folders[i]));
    }
    return m_Configuration != nullptr;
}

std::optional<FontMatch> FontQuery::Match(const FontWish& wish, bool& outline) {
    const std::string family = ToUtf8(wish.Face);
    const Pattern wanted = PatternOf(wish, family);
    if (!Prepare() || !wanted) {
        return std::nullopt;
    }
    FcConfigSubstitute(m_Configuration.get(), wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(m_Configuration.get(), wanted.get(), &result));
    if (!found) {
        return std::nullopt;
    }
    outline = FlagOf(found.get(), FC_SCALABLE) && FlagOf(found.get(), FC_OUTLINE);
    FontMatch match{NameOf(found.get(), FC_FAMILY, FC_FAMILYLANG),
                    NameOf(found.get(), FC_STYLE, FC_STYLELANG), TextAt(found.get(), FC_FILE, 0),
                    NumberOf(found.get(), FC_INDEX, 0), !HasFamily(found.get(), family)};
    return match.Path.empty() ? std::nullopt : std::optional(std::move(match));
}

std::vector<InstalledFont> FontQuery::Families() {
    std::vector<InstalledFont> fonts;
    const FontSet set = Prepare() ? ListLatin(m_Configuration.get()) : nullptr;
    for (int i = 0; set && i < set->nfont; ++i) {
        fonts.push_back(FontOf(set->fonts[i]));
    }
    std::ranges::sort(fonts, ComesBefore);
    const auto isSameFamily = [](const InstalledFont& a, const InstalledFont& b) {
        return MARLINSUITE::EqualIgnoringCase(a.Family, b.Family);
    };
    fonts.erase(std::unique(fonts.begin(), fonts.end(), isSameFamily), fonts.end());
    return fonts;
}

}  // namespace PLATFORM::detail
