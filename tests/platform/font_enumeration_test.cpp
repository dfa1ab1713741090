// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/font_catalog.h>
#include <marlin/platform/drawing/fonts.h>
#include <marlin/platform/text/ascii.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct Seen {
    std::vector<std::string> Faces;
    std::vector<LOGFONTA> Fonts;
    std::size_t Most = 100000;
};

int Note(const LOGFONTA* font, const TEXTMETRICA* metrics, unsigned long type, long argument) {
    EXPECT_EQ(type, TRUETYPE_FONTTYPE);
    EXPECT_EQ(metrics->tmWeight, font->lfWeight);
    Seen& seen = *reinterpret_cast<Seen*>(argument);
    seen.Faces.emplace_back(font->lfFaceName);
    seen.Fonts.push_back(*font);
    return seen.Faces.size() < seen.Most ? 1 : 0;
}

int Enumerate(const char* face, Seen& seen) {
    CClientDC dc(nullptr);
    LOGFONTA wanted;
    std::strncpy(wanted.lfFaceName, face, LF_FACESIZE - 1);
    return EnumFontFamiliesExA(dc, &wanted, Note, reinterpret_cast<long>(&seen), 0);
}

TEST(FontEnumeration, TellsEachFamilyOnceInOrder) {
    Seen seen;
    EXPECT_EQ(Enumerate("", seen), 1);
    EXPECT_TRUE(std::ranges::count(seen.Faces, "Liberation Sans") == 1);
    EXPECT_TRUE(std::ranges::count(seen.Faces, "DejaVu Serif") == 1);
    const auto before = [](const std::string& a, const std::string& b) {
        return PLATFORM::CompareIgnoringCase(a, b) < 0;
    };
    EXPECT_TRUE(std::ranges::is_sorted(seen.Faces, before));
    EXPECT_EQ(std::ranges::adjacent_find(seen.Faces), seen.Faces.end());
    const std::vector<std::string> all = PLATFORM::FontCatalog::Families();
    EXPECT_TRUE(std::ranges::includes(all, seen.Faces, before));
}

TEST(FontEnumeration, OfOneFamilyTellsTheStyles) {
    Seen seen;
    EXPECT_EQ(Enumerate("liberation sans", seen), 1);
    ASSERT_EQ(seen.Fonts.size(), 4U);
    const std::pair<int, int> expected[] = {{400, 0}, {400, 1}, {700, 0}, {700, 1}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(seen.Fonts[i].lfWeight, expected[i].first);
        EXPECT_EQ(seen.Fonts[i].lfItalic, expected[i].second);
    }
    Seen none;
    EXPECT_EQ(Enumerate("No Such Face", none), 1);
    EXPECT_TRUE(none.Faces.empty());
}

TEST(FontEnumeration, EndsWhenTheCallSaysSo) {
    Seen seen;
    seen.Most = 2;
    EXPECT_EQ(Enumerate("", seen), 0);
    EXPECT_EQ(seen.Faces.size(), 2U);
}

TEST(FontEnumeration, RefusesWrongArguments) {
    LOGFONTA wanted;
    Seen seen;
    const auto argument = reinterpret_cast<long>(&seen);
    EXPECT_EQ(EnumFontFamiliesExA(nullptr, &wanted, Note, argument, 0), 0);
    CClientDC dc(nullptr);
    EXPECT_EQ(EnumFontFamiliesExA(dc, nullptr, Note, argument, 0), 0);
    EXPECT_EQ(EnumFontFamiliesExA(dc, &wanted, nullptr, argument, 0), 0);
    EXPECT_TRUE(seen.Faces.empty());
}

TEST(FontEnumeration, OpensNoFontFile) {
    const std::size_t before = PLATFORM::FontCatalog::Costs().FileOpens;
    Seen seen;
    Enumerate("", seen);
    EXPECT_FALSE(seen.Faces.empty());
    EXPECT_EQ(PLATFORM::FontCatalog::Costs().FileOpens, before);
}

}  // namespace
