// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/detail/selected_font.h>
#include <marlin/platform/fonts/fonts.h>
#include <marlin/platform/text/code_page.h>

#include <string>

namespace {

using namespace PLATFORM;
using namespace PLATFORM::detail;

// False for a name that a LOGFONTA cannot carry.
bool Describe(const InstalledFont& font, LOGFONTA& logical, TEXTMETRICA& metrics) {
    const std::string windows = FromUtf8(font.Family);
    const std::string& face = ToUtf8(windows) == font.Family ? windows : font.Family;
    if (face.empty() || face.size() >= LF_FACESIZE) {
        return false;
    }
    logical.lfWeight = metrics.tmWeight = font.Weight;
    logical.lfItalic = metrics.tmItalic = font.Italic;
    logical.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    // The same bit means a fixed pitch in one and a variable one in the other.
    logical.lfPitchAndFamily = font.FixedPitch ? 1 : 2;
    metrics.tmPitchAndFamily = font.FixedPitch ? 6 : 7;
    face.copy(logical.lfFaceName, face.size());
    return true;
}

}  // namespace

BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) noexcept {
    const bool isText = count >= 0 && (text || count == 0);
    const SelectedFont font = size && isText ? FontOf(dc) : SelectedFont();
    if (!font) {
        return 0;
    }
    *size = font.Sized.Extent({text, static_cast<std::size_t>(count)});
    return 1;
}

int EnumFontFamiliesExA(HDC dc, const LOGFONTA*, FONTENUMPROCA call, long argument, unsigned long) {
    if (!Contexts().Find(dc) || !call) {
        return 0;
    }
    int result = 1;
    for (const InstalledFont& font : FontStore::Families()) {
        LOGFONTA logical;
        TEXTMETRICA metrics;
        if (result != 0 && Describe(font, logical, metrics)) {
            result = call(&logical, &metrics, TRUETYPE_FONTTYPE, argument);
        }
    }
    return result;
}
