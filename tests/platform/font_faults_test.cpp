// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/font_catalog.h>
#include <marlin/platform/drawing/painting.h>
#include <marlin/platform/drawing/text_outline.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <support/measured_font.h>
#include <support/temporary_folder.h>

namespace {

using PLATFORM::FontCatalog;
using PLATFORM::FontMatch;

// Fonts from one folder, which also takes what is noted about them, for the lifetime of a scope.
class FolderFonts {
public:
    FolderFonts() {
        const std::string rules = m_Configuration.Write(
            "fonts.conf",
            "<fontconfig><cachedir>" + m_Configuration.File("cache") + "</cachedir></fontconfig>");
        ::setenv("FONTCONFIG_FILE", rules.c_str(), 1);
        Rescan();
    }
    FolderFonts(const FolderFonts&) = delete;
    FolderFonts& operator=(const FolderFonts&) = delete;
    ~FolderFonts() {
        FontCatalog::UseSystemFonts();
        ::unsetenv("FONTCONFIG_FILE");
    }

    void Rescan() const { FontCatalog::SetFolders({m_Folder.File("")}); }
    [[nodiscard]] std::string File() const { return m_Folder.File("font.ttf"); }
    void Write(const std::string& bytes, const std::string& name = "font.ttf") const {
        m_Folder.Write(name, bytes);
    }

private:
    TemporaryFolder m_Configuration;
    TemporaryFolder m_Folder;
};

std::string BytesOfSans() {
    FontMatch match;
    EXPECT_TRUE(FontCatalog::Find("Liberation Sans", 400, false, match));
    return TemporaryFolder::Read(match.Path);
}

// All that a font that cannot be measured must refuse, targets unchanged.
void ExpectNothing(MeasuredFont& font) {
    EXPECT_EQ(font.Extent("Depth"), CSize(-1, -1));
    OUTLINETEXTMETRICA metrics;
    metrics.otmSize = 77;
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(sizeof metrics, &metrics), 0U);
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(0, nullptr), 0U);
    EXPECT_EQ(metrics.otmSize, 77U);
    PLATFORM::TextOutline outline;
    EXPECT_FALSE(PLATFORM::GetTextOutline(font.DC(), "Depth", 5, outline));
    EXPECT_FALSE(font.DC().TextOut(0, 0, "Depth"));
}

TEST(FontFaults, WithoutFontsNothingIsMeasured) {
    const FolderFonts folder;
    MeasuredFont font("Arial", 100);
    ExpectNothing(font);
    FontMatch match;
    match.Index = 77;
    EXPECT_FALSE(FontCatalog::Find("Arial", 400, false, match));
    EXPECT_EQ(match.Index, 77);
    EXPECT_TRUE(FontCatalog::Families().empty());
}

TEST(FontFaults, AFontThatComesLaterIsFound) {
    const std::string sans = BytesOfSans();
    const FolderFonts folder;
    MeasuredFont early("Liberation Sans", 100);
    folder.Write(sans);
    EXPECT_EQ(MeasuredFont("Liberation Sans", 100).Extent("x").cy, 100);
    ExpectNothing(early);
}

TEST(FontFaults, AFontFileDestroyedAfterItWasFoundIsNotMeasured) {
    const std::string sans = BytesOfSans();
    for (const std::size_t kept : {std::size_t{0}, std::size_t{3}, std::size_t{200}}) {
        const FolderFonts folder;
        folder.Write(sans);
        folder.Rescan();
        ASSERT_EQ(FontCatalog::Families().size(), 1U);
        folder.Write(sans.substr(0, kept));
        MeasuredFont font("Liberation Sans", 100);
        ExpectNothing(font);
    }
}

TEST(FontFaults, AFontFileRemovedOrMadeAFolderIsNotMeasured) {
    const std::string sans = BytesOfSans();
    for (const bool replaced : {false, true}) {
        const FolderFonts folder;
        folder.Write(sans);
        folder.Rescan();
        ASSERT_EQ(FontCatalog::Families().size(), 1U);
        std::filesystem::remove(folder.File());
        if (replaced) {
            std::filesystem::create_directory(folder.File());
        }
        MeasuredFont font("Liberation Sans", 100);
        ExpectNothing(font);
    }
}

TEST(FontFaults, DamagedTablesNeverBringTheProgramDown) {
    const std::string sans = BytesOfSans();
    std::size_t measured = 0;
    for (std::size_t step = 0; step < 60; ++step) {
        std::string damaged = sans;
        for (std::size_t i = 0; i < 40; ++i) {
            // Spread over the table directory and the tables' beginnings.
            const std::size_t at = (step * 977 + i * (step % 3 == 0 ? 7 : 10007)) % sans.size();
            damaged[at] = static_cast<char>(step * 31 + i * 17);
        }
        const FolderFonts folder;
        folder.Write(sans);
        folder.Rescan();
        ASSERT_EQ(FontCatalog::Families().size(), 1U);
        folder.Write(damaged);
        MeasuredFont font("Liberation Sans", 100);
        PLATFORM::TextOutline outline;
        const bool outlined = PLATFORM::GetTextOutline(font.DC(), "Depth 12", 8, outline);
        const CSize extent = font.Extent("Depth 12");
        EXPECT_EQ(outlined, extent.cy == 100);
        measured += outlined ? 1 : 0;
    }
    // Damage within glyphs leaves the metrics readable.
    EXPECT_GT(measured, 0U);
    EXPECT_LT(measured, 60U);
}

TEST(FontFaults, ABitmapFontIsNotMeasured) {
    const FolderFonts folder;
    folder.Write(
        "STARTFONT 2.1\nFONT -misc-Dots-Medium-R-Normal--8-80-75-75-C-80-ISO10646-1\n"
        "SIZE 8 75 75\nFONTBOUNDINGBOX 8 8 0 0\nSTARTPROPERTIES 4\nFAMILY_NAME \"Dots\"\n"
        "PIXEL_SIZE 8\nFONT_ASCENT 8\nFONT_DESCENT 0\nENDPROPERTIES\nCHARS 1\nSTARTCHAR A\n"
        "ENCODING 65\nSWIDTH 1000 0\nDWIDTH 8 0\nBBX 8 8 0 0\nBITMAP\n"
        "FF\n81\n81\n81\n81\n81\n81\nFF\nENDCHAR\nENDFONT\n",
        "dots.bdf");
    folder.Rescan();
    MeasuredFont font("Dots", 100);
    ExpectNothing(font);
    EXPECT_TRUE(FontCatalog::Families().empty());
}

TEST(FontFaults, FontsMadeBeforeKeepTheirFaces) {
    const MeasuredFont font("Liberation Sans", 100);
    const CSize before = font.Extent("Depth");
    const FolderFonts folder;
    EXPECT_EQ(font.Extent("Depth"), before);
}

}  // namespace
