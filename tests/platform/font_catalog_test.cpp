// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/fonts/text_outline.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <support/measured_font.h>
#include <support/temporary_folder.h>

namespace {

using namespace PLATFORM;

FontMatch FaceOf(const char* name) {
    FontMatch match;
    EXPECT_TRUE(FontCatalog::Find(name, 400, false, match));
    return match;
}

// At most one font file, in a folder that also has the notes about it, for the lifetime of a
// scope.
class FolderFonts {
public:
    explicit FolderFonts(const std::string& font = "") {
        const std::string cache = "<cachedir>" + m_Folder.File("cache") + "</cachedir>";
        m_Folder.Write("fonts.conf", "<fontconfig>" + cache + "</fontconfig>");
        ::setenv("FONTCONFIG_FILE", m_Folder.File("fonts.conf").c_str(), 1);
        std::filesystem::create_directory(m_Folder.File("fonts"));
        if (!font.empty()) {
            Write(font);
        }
        FontCatalog::SetFolders({m_Folder.File("fonts/")});
    }
    ~FolderFonts() {
        FontCatalog::SetFolders({});
        ::unsetenv("FONTCONFIG_FILE");
    }

    [[nodiscard]] std::string File() const { return m_Folder.File("fonts/font.ttf"); }
    void Write(const std::string& bytes) const { m_Folder.Write("fonts/font.ttf", bytes); }

private:
    TemporaryFolder m_Folder;
};

// A font that cannot be measured refuses all calls and leaves their targets unchanged.
void ExpectNothing(MeasuredFont&& font) {
    EXPECT_EQ(font.Extent("Depth"), CSize(-1, -1));
    OUTLINETEXTMETRICA metrics;
    metrics.otmSize = 77;
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(sizeof metrics, &metrics), 0U);
    EXPECT_EQ(font.DC().GetOutlineTextMetricsA(0, nullptr), 0U);
    EXPECT_EQ(metrics.otmSize, 77U);
    TextOutline outline;
    EXPECT_FALSE(GetTextOutline(font.DC(), "Depth", 5, outline));
    EXPECT_FALSE(font.DC().TextOut(0, 0, "Depth"));
}

TEST(FontFaults, WithoutFontsOnlyThoseMadeBeforeAreMeasuredUntilOneComes) {
    const MeasuredFont before("Liberation Sans", 100);
    const CSize extent = before.Extent("Depth");
    const std::string sans = TemporaryFolder::Read(FaceOf("Liberation Sans").Path);
    const FolderFonts folder;
    EXPECT_TRUE(FontCatalog::Families().empty());
    FontMatch match;
    match.Index = 77;
    EXPECT_FALSE(FontCatalog::Find("Arial", 400, false, match));
    EXPECT_EQ(match.Index, 77);
    MeasuredFont early("Liberation Sans", 100);
    EXPECT_EQ(before.Extent("Depth"), extent);
    folder.Write(sans);
    EXPECT_EQ(MeasuredFont("Liberation Sans", 100).Extent("Depth"), extent);
    ExpectNothing(std::move(early));
}

TEST(FontFaults, AFontFileDestroyedAfterItWasFoundIsNotMeasured) {
    const std::string sans = TemporaryFolder::Read(FaceOf("Liberation Sans").Path);
    constexpr int removed = -1;
    constexpr int madeAFolder = -2;
    for (const int bytes : {0, 3, 200, removed, madeAFolder}) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, bytes);
        const FolderFonts folder(sans);
        ASSERT_EQ(FontCatalog::Families().size(), 1U);
        std::filesystem::remove(folder.File());
        if (bytes == madeAFolder) {
            std::filesystem::create_directory(folder.File());
        } else if (bytes != removed) {
            folder.Write(sans.substr(0, static_cast<std::size_t>(bytes)));
        }
        ExpectNothing({"Liberation Sans", 100});
    }
}

TEST(FontFaults, DamagedTablesNeverBringTheProgramDown) {
    const std::string sans = TemporaryFolder::Read(FaceOf("Liberation Sans").Path);
    int measured = 0;
    for (std::size_t step = 0; step < 60; ++step) {
        std::string damaged = sans;
        for (std::size_t i = 0; i < 40; ++i) {
            // Spread over the table directory and the tables' beginnings.
            const std::size_t at = (step * 977 + i * (step % 3 == 0 ? 7 : 10007)) % sans.size();
            damaged[at] = static_cast<char>(step * 31 + i * 17);
        }
        const FolderFonts folder(sans);
        ASSERT_EQ(FontCatalog::Families().size(), 1U);
        folder.Write(damaged);
        MeasuredFont font("Liberation Sans", 100);
        TextOutline outline;
        const bool outlined = GetTextOutline(font.DC(), "Depth 12", 8, outline);
        EXPECT_EQ(outlined, font.Extent("Depth 12").cy == 100);
        measured += outlined ? 1 : 0;
    }
    // Damage within glyphs leaves the metrics readable.
    EXPECT_GT(measured, 0);
    EXPECT_LT(measured, 60);
}

TEST(FontFaults, ABitmapFontIsNotMeasured) {
    const FolderFonts folder(
        "STARTFONT 2.1\nFONT -misc-Dots-Medium-R-Normal--8-80-75-75-C-80-ISO10646-1\n"
        "SIZE 8 75 75\nFONTBOUNDINGBOX 8 8 0 0\nSTARTPROPERTIES 6\nFAMILY_NAME \"Dots\"\n"
        "CHARSET_REGISTRY \"ISO10646\"\nCHARSET_ENCODING \"1\"\nPIXEL_SIZE 8\n"
        "FONT_ASCENT 8\nFONT_DESCENT 0\nENDPROPERTIES\nCHARS 1\nSTARTCHAR A\nENCODING 65\nSWIDTH "
        "1000 0\nDWIDTH 8 0\nBBX 8 8 0 0\nBITMAP\n"
        "FF\n81\n81\n81\n81\n81\n81\nFF\nENDCHAR\nENDFONT\n");
    ExpectNothing({"Dots", 100});
    EXPECT_TRUE(FontCatalog::Families().empty());
}

// A number as the four bytes of a font file, and back.
std::string Long(std::size_t number) {
    const auto word = __builtin_bswap32(static_cast<std::uint32_t>(number));
    return {reinterpret_cast<const char*>(&word), sizeof word};
}
std::size_t LongAt(const std::string& bytes, std::size_t at) {
    std::uint32_t word = 0;
    bytes.copy(reinterpret_cast<char*>(&word), sizeof word, at);
    return __builtin_bswap32(word);
}

// One file of two fonts: a header, then the fonts, whose tables are further on by as much.
std::string CollectionOf(const std::string& first, const std::string& second) {
    std::string file = "ttcf" + Long(0x10000) + Long(2) + Long(20) + Long(20 + first.size());
    for (std::string font : {first, second}) {
        const auto tables = static_cast<std::size_t>(font[5]);
        for (std::size_t place = 20; place < 12 + 16 * tables; place += 16) {
            font.replace(place, 4, Long(LongAt(font, place) + file.size()));
        }
        file += font;
    }
    return file;
}

TEST(FontCatalog, ReadsAFileOnceForAllItsFaces) {
    FontMatch bold;
    ASSERT_TRUE(FontCatalog::Find("Liberation Sans", 700, false, bold));
    const CSize light = MeasuredFont("Liberation Sans", 100).Extent("Depth");
    const CSize heavy = MeasuredFont("Liberation Sans", 100, 700).Extent("Depth");
    const FolderFonts folder(CollectionOf(TemporaryFolder::Read(FaceOf("Liberation Sans").Path),
                                          TemporaryFolder::Read(bold.Path)));
    const std::size_t opens = FontCatalog::Costs().FileOpens;
    EXPECT_EQ(MeasuredFont("Liberation Sans", 100, 700).Extent("Depth"), heavy);
    EXPECT_EQ(MeasuredFont("Liberation Sans", 100).Extent("Depth"), light);
    EXPECT_NE(light.cx, heavy.cx);
    EXPECT_EQ(FontCatalog::Costs().FileOpens, opens + 1);
    ASSERT_TRUE(FontCatalog::Find("Liberation Sans", 700, false, bold));
    EXPECT_EQ(bold.Index, 1);
}

class FontEnumeration : public testing::Test {
protected:
    static int Note(const LOGFONTA* font, const TEXTMETRICA*, unsigned long type, long argument) {
        EXPECT_EQ(type, TRUETYPE_FONTTYPE);
        auto& self = *reinterpret_cast<FontEnumeration*>(argument);
        self.m_Faces.emplace_back(font->lfFaceName);
        return self.m_Faces.size() < self.m_Most ? 1 : 0;
    }
    int Enumerate() { return EnumFontFamiliesExA(m_DC, &m_Wanted, Note, m_Argument, 0); }

    const CClientDC m_DC{nullptr};
    LOGFONTA m_Wanted;
    std::vector<std::string> m_Faces;
    std::size_t m_Most = 100000;
    const long m_Argument = reinterpret_cast<long>(this);
};

TEST_F(FontEnumeration, NamesEachFamilyOnceInOrderAndOpensNoFile) {
    const std::size_t opens = FontCatalog::Costs().FileOpens;
    EXPECT_EQ(Enumerate(), 1);
    EXPECT_EQ(FontCatalog::Costs().FileOpens, opens);
    EXPECT_EQ(std::ranges::count(m_Faces, "Liberation Sans"), 1);
    const auto before = [](const std::string& a, const std::string& b) {
        return MARLINSUITE::CompareIgnoringCase(a, b) < 0;
    };
    EXPECT_TRUE(std::ranges::is_sorted(m_Faces, before));
    EXPECT_EQ(std::ranges::adjacent_find(m_Faces), m_Faces.end());
    EXPECT_TRUE(std::ranges::includes(FontCatalog::Families(), m_Faces, before));
}

TEST_F(FontEnumeration, EndsWhereTheCallEndsItAndNeedsAContextAndACall) {
    m_Most = 6;
    EXPECT_EQ(Enumerate(), 0);
    EXPECT_EQ(EnumFontFamiliesExA(nullptr, &m_Wanted, Note, m_Argument, 0), 0);
    EXPECT_EQ(EnumFontFamiliesExA(m_DC, &m_Wanted, nullptr, m_Argument, 0), 0);
    EXPECT_EQ(m_Faces.size(), 6U);
}

TEST(FontCatalog, FindsAFileThatWasAddedAfterItsListing) {
    FontMatch mono = FaceOf("Liberation Mono");
    const std::string bytes = TemporaryFolder::Read(mono.Path);
    const FolderFonts folder(TemporaryFolder::Read(FaceOf("Liberation Sans").Path));
    EXPECT_EQ(FontCatalog::Families(), std::vector<std::string>{"Liberation Sans"});
    EXPECT_EQ(FaceOf("Liberation Serif").Family, "Liberation Sans");
    std::ofstream(std::filesystem::path(folder.File()).replace_filename("mono.ttf")) << bytes;
    EXPECT_EQ(FaceOf("Liberation Mono").Family, "Liberation Mono");
    EXPECT_EQ(FontCatalog::Families().size(), 2U);
}

TEST(FontCatalog, NamesTheSubstituteOfAnUnknownFace) {
    EXPECT_FALSE(FaceOf("liberation SANS").Substituted);
    EXPECT_EQ(FaceOf("liberation SANS").Family, "Liberation Sans");
    EXPECT_TRUE(FaceOf("No Such Face At All").Substituted);
    EXPECT_NE(FaceOf("No Such Face At All").Family, "No Such Face At All");
}

}  // namespace
