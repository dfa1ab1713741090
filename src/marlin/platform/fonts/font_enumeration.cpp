// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/fonts/fonts.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <cstring>

namespace {

using namespace PLATFORM;

// False for a name that a LOGFONTA cannot carry.
bool Describe(const InstalledFont& font, LOGFONTA& logical, TEXTMETRICA& metrics) {
    const std::string face = FromUtf8(font.Family);
    if (face.empty() || face.size() >= LF_FACESIZE || ToUtf8(face) != font.Family) {
        return false;
    }
    logical.lfWeight = metrics.tmWeight = font.Weight;
    logical.lfItalic = metrics.tmItalic = font.Italic;
    logical.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    logical.lfPitchAndFamily = font.FixedPitch ? 1 : 2;
    metrics.tmPitchAndFamily = font.FixedPitch ? 6 : 7;
    std::memcpy(logical.lfFaceName, face.data(), face.size());
    return true;
}

// Of each family the first font, whose weight and slant are the lowest.
void KeepFamilies(std::vector<InstalledFont>& fonts) {
    const auto isSameFamily = [](const InstalledFont& a, const InstalledFont& b) {
        return EqualIgnoringCase(a.Family, b.Family);
    };
    fonts.erase(std::unique(fonts.begin(), fonts.end(), isSameFamily), fonts.end());
}

}  // namespace

int EnumFontFamiliesExA(HDC dc, LOGFONTA* wanted, FONTENUMPROCA call, long argument,
                        unsigned long) {
    if (!Contexts.Find(dc) || !wanted || !call) {
        return 0;
    }
    const std::string_view name(wanted->lfFaceName, ::strnlen(wanted->lfFaceName, LF_FACESIZE));
    std::vector<InstalledFont> fonts = FontStore::Installed(ToUtf8(name));
    if (name.empty()) {
        KeepFamilies(fonts);
    }
    int result = 1;
    for (const InstalledFont& font : fonts) {
        LOGFONTA logical;
        TEXTMETRICA metrics;
        if (result != 0 && Describe(font, logical, metrics)) {
            result = call(&logical, &metrics, TRUETYPE_FONTTYPE, argument);
        }
    }
    return result;
}

namespace PLATFORM {

std::vector<std::string> FontCatalog::Families() {
    std::vector<InstalledFont> fonts = FontStore::Installed("");
    KeepFamilies(fonts);
    std::vector<std::string> families;
    families.reserve(fonts.size());
    for (InstalledFont& font : fonts) {
        families.push_back(std::move(font.Family));
    }
    return families;
}

bool FontCatalog::Find(const char* faceName, int weight, bool italic, FontMatch& match) {
    const FontEntry* entry = FontStore::Find(faceName ? faceName : "", weight, italic, true);
    if (entry) {
        match = entry->Match;
    }
    return entry != nullptr;
}

FontCosts FontCatalog::Costs() noexcept {
    return FontStore::Costs();
}

void FontCatalog::SetFolders(const std::vector<std::string>& folders) {
    FontStore::SetFolders(folders);
}

void FontCatalog::UseSystemFonts() {
    FontStore::UseSystemFonts();
}

}  // namespace PLATFORM
