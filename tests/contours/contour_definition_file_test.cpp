// SPDX-License-Identifier: MIT
#include "contours/definition_text.h"
#include "support/temporary_folder.h"
#include <marlin/base/error_string.h>
#include <marlin/settings/section.h>

#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

class ContourDefinitionFile : public testing::Test {
protected:
    const TemporaryFolder m_Folder;
    const std::string m_Path = m_Folder.File("a.cdf");
    ContourDefinitionList m_List;

    // Loads a file that holds these bytes.
    bool Load(const std::string& bytes, ContourDefinitionList& list) const {
        return list.Load(m_Folder.Write("a.cdf", bytes).c_str());
    }
    [[nodiscard]] std::string Bytes() const { return TemporaryFolder::Read(m_Path); }
};

ContourDefinitionList FiveAndTen() {
    ContourDefinitionList list;  // of width, line type, level, color and annotation
    list.Add({0.25F, 2, 10.0, 0x0201FF, true});
    list.Add({1.0F, 0, 5.0, 0xFF0000, false});
    return list;
}

TEST_F(ContourDefinitionFile, HasASectionForEachDefinitionAndLoadsBehindWhatTheListHolds) {
    ASSERT_TRUE(FiveAndTen().Save(m_Path.c_str()));
    EXPECT_EQ(Bytes(),
              "[Contour(0)]\r\n"
              "Level     = 5.000000\r\n"
              "Color     = 170\r\n"
              "TrueColor = 16711680\r\n"
              "LineType  = CONTINUOUS\r\n"
              "LineWidth = 1.000000\r\n"
              "Annotate  = 0\r\n"
              "\r\n"
              "[Contour(1)]\r\n"
              "Level     = 10.000000\r\n"
              "Color     = 10\r\n"
              "TrueColor = 131583\r\n"
              "LineType  = DOTTED\r\n"
              "LineWidth = 0.250000\r\n"
              "Annotate  = 1\r\n"
              "\r\n");
    m_List.Add({3.0F, 2, 99.0, 1, true});
    EXPECT_TRUE(m_List.Load(m_Path.c_str()));
    EXPECT_EQ(TextOf(m_List), "99/1/2/3/1 " + TextOf(FiveAndTen()));
}

TEST_F(ContourDefinitionFile, ADefinitionReplacesItsKeysInASectionAndLeavesTheOthers) {
    Section section("Contour(7)");
    section += SectionKey("annotate", "yes", " why");
    section += SectionKey("Source", "survey");
    section += SectionKey("COLOR", 1);
    EXPECT_TRUE(FiveAndTen()[1].Write(section));
    std::string text;
    section.AppendTo(text);
    EXPECT_EQ(text,
              "[Contour(7)]\r\n"
              "annotate  = 1         ; why\r\n"
              "Source    = survey\r\n"
              "COLOR     = 10\r\n"
              "Level     = 10.000000\r\n"
              "TrueColor = 131583\r\n"
              "LineType  = DOTTED\r\n"
              "LineWidth = 0.250000\r\n"
              "\r\n");
    ContourDefinitionList::ContourDefInfo read;
    EXPECT_TRUE(read.Read(section));
    EXPECT_EQ(TextOf(read), "10/131583/2/0.25/1 ");
    EXPECT_TRUE(read.Read(Section("Contour(8)")));
    EXPECT_EQ(TextOf(read), "10/0/0/0.25/1 ") << "color and line type have no value to keep";
    int paletteIndex = 5;
    EXPECT_TRUE(read.Read(Section("Contour(9)"), paletteIndex));
    EXPECT_EQ(TextOf(read), "10/16711680/0/0.25/1 ") << "blue, as in the section before";
    EXPECT_EQ(ContourDefinitionList::SectionName(12), "Contour(12)");
}

TEST_F(ContourDefinitionFile, IsReadInEveryFormThatSettingsFilesMayHave) {
    const std::pair<const char*, const char*> cases[] = {
        {"[Contour(0)]\nLevel=5\nLineType=Dashed\nLineWidth=2\nAnnotate=1\nTrueColor=7",
         "5/7/1/2/1 "},
        {"[CONTOUR(0)] ; first\r\n level = 5 m ; metres\r\nlinetype=dotted", "5/0/2/0/0 "},
        {"[Contour(0)]\nLineType=WAVY\nLevel=-1e2", "-100/0/0/0/0 "},
        {"[Contour(0)]\nColor=5", "0/16711680/0/0/0 "},
        {"[Contour(0)]\nColor=5\nTrueColor=red", "0/16711680/0/0/0 "},
        {"[Contour(0)]\nColor=300", "0/0/0/0/0 "},
        {"[Contour(0)]\nColor=-1", "0/0/0/0/0 "},
        {"[Contour(0)]\nTrueColor=4294967295", "0/4294967295/0/0/0 "},
        // The first of several keys of one name counts, readable or not.
        {"[Contour(0)]\nLevel=5\nLevel=6", "5/0/0/0/0 "},
        {"[Contour(0)]\nLevel=deep\nLevel=6", "0/0/0/0/0 "},
        // What a section lacks is that of the one before, line type and true color apart.
        {"[Contour(0)]\nLevel=5\nColor=1\nTrueColor=9\nLineType=DOTTED\nLineWidth=2\nAnnotate=1\n"
         "[Contour(1)]",
         "5/9/2/2/1 5/255/0/2/1 "},
        {"[Contour(0)]\nAnnotate=1\n[Contour(1)]\nAnnotate=yes\n[Contour(2)]\nAnnotate=0",
         "0/0/0/0/1 0/0/0/0/1 0/0/0/0/0 "},
        // In the order of the numbers, up to the first that is missing.
        {"[Contour(2)]\nLevel=3\n[Contour(0)]\nLevel=1\n[Contour(1)]\nLevel=2\nAnnotate=1",
         "1/0/0/0/0 2/0/0/0/1 3/0/0/0/1 "},
        {"[Other]\nLevel=9\n[Contour(0)]\nLevel=1\n[Contour(2)]\nLevel=3", "1/0/0/0/0 "},
        {"[Contour(0)]\nLevel=7\n[Contour(1)]\nLevel=7\n[Contour(2)]\nLevel=1",
         "7/0/0/0/0 7/0/0/0/0 1/0/0/0/0 "},
        // A fault ends the reading; what stands before it counts.
        {"[Contour(0)]\nLevel=1\n[Contour(1)]\nLevel=2\n[contour(0)]\n[Contour(2)]",
         "1/0/0/0/0 2/0/0/0/0 "},
        {"[Contour(1)]\nLevel=1\n[Contour(0)]\nLevel=2\n[Contour(1)]\n", "2/0/0/0/0 1/0/0/0/0 "},
        {"[Contour(0)]\nLevel=1\n[Contour(1)]\nLevel=2\n[]\n", "1/0/0/0/0 "},
        {"[Contour(1)]\nLevel=1\n[Contour(0)]\nLevel=2\n[a]\n[]\n", "2/0/0/0/0 1/0/0/0/0 "},
        {"[Contour(0)]\nLevel=1\n[Contour(2)]\nLevel=2\n[]\n", "1/0/0/0/0 "},
        {"[Contour(0)]\n[a]\n[A]\n[Contour(1)]\n", "0/0/0/0/0 "},
    };
    for (const auto& [bytes, definitions] : cases) {
        ContourDefinitionList list;
        EXPECT_TRUE(Load(bytes, list)) << bytes;
        EXPECT_EQ(TextOf(list), definitions) << bytes;
    }
}

TEST_F(ContourDefinitionFile, LeavesTheListWhenThereIsNothingToRead) {
    // A line of more than 64 MiB is not read, nor is what follows it.
    for (const std::string& bytes :
         {std::string(), std::string("Level=5\n"), std::string("[Contour(0)\nLevel=5\n"),
          std::string("[]\n[Contour(0)]\n"), std::string("[Contour(0)]\n[]\n"),
          "[Contour(0)]\n[Contour(1)]\n" + std::string(64 * 1024 * 1024 + 1, 'x')}) {
        ContourDefinitionList list = FiveAndTen();
        EXPECT_FALSE(Load(bytes, list)) << bytes.substr(0, 40);
        EXPECT_EQ(TextOf(list), TextOf(FiveAndTen())) << bytes.substr(0, 40);
    }
    for (const char* path : {static_cast<const char*>(nullptr), "", "/", "/nowhere/at/all.cdf"}) {
        ContourDefinitionList list = FiveAndTen();
        EXPECT_FALSE(list.Load(path));
        EXPECT_EQ(TextOf(list), TextOf(FiveAndTen()));
        EXPECT_FALSE(list.Save(path));
    }
}

// A list that holds something is not empty afterwards, which is what the result says.
TEST_F(ContourDefinitionFile, YieldsNoDefinitionFromSectionsOfOtherNames) {
    for (const char* name : {"Contour", "Contour()", "Contour(00)", "Contour(+0)", "Contour( 0)",
                             "Contour(1)", "Contour(0) ", "xContour(0)", "Contour(0x0)",
                             "Contour(18446744073709551616)", "Contour(000000000000000000000)"}) {
        const std::string bytes = "[" + std::string(name) + "]\nLevel=5\n";
        EXPECT_FALSE(Load(bytes, m_List)) << name;
        EXPECT_EQ(m_List.NumContours(), 0) << name;
        ContourDefinitionList list = FiveAndTen();
        EXPECT_TRUE(Load(bytes, list)) << name;
        EXPECT_EQ(list.NumContours(), 2) << name;
    }
}

TEST_F(ContourDefinitionFile, IsReadWholeInReverseOrder) {
    constexpr int count = 5000;
    std::string bytes;
    for (int n = count - 1; n >= 0; --n) {
        const std::string number = std::to_string(n);
        bytes += "[Contour(" + number + ")]\nLevel=" + number + "\n";
    }
    ASSERT_TRUE(Load(bytes, m_List));
    ASSERT_EQ(m_List.NumContours(), count);
    for (int n = 0; n < count; ++n) {
        EXPECT_EQ(m_List.Find(n), n);
    }
}

TEST_F(ContourDefinitionFile, IsSearchedByHalvesThoughItsLevelsDoNotAscend) {
    ASSERT_TRUE(
        Load("[Contour(0)]\nLevel=10\n[Contour(1)]\nLevel=30\n[Contour(2)]\nLevel=5\n", m_List));
    ContourDefinitionList moved = std::move(m_List);
    EXPECT_EQ(moved.Add({.Level = 30.0}), -1);
    EXPECT_EQ(moved.Add({.Level = 20.0}), 1);
    EXPECT_EQ(moved.Set(2, {.Level = 30.0, .Color = 7}), 2) << "in its place";
    EXPECT_EQ(moved.Set(3, {.Level = 5.0, .Color = 9}), 3);
    EXPECT_EQ(TextOf(moved), "10/0/0/0/0 20/0/0/0/0 30/7/0/0/0 5/9/0/0/0 ");
}

TEST_F(ContourDefinitionFile, KeepsSixDecimalsOfALevelAndNamesUnknownLineTypesContinuous) {
    m_List.Add({0.0F, -1, 0.1234567, 0, false});
    m_List.Add({0.0F, 3, 1e15 + 0.5, 0, false});
    ASSERT_TRUE(m_List.Save(m_Path.c_str()));
    const std::string bytes = Bytes();
    const char* const line = "LineType  = CONTINUOUS\r\n";
    EXPECT_NE(bytes.find(line), bytes.rfind(line)) << bytes;
    ContourDefinitionList loaded;
    ASSERT_TRUE(loaded.Load(m_Path.c_str()));
    EXPECT_EQ(TextOf(loaded), "0.123457/0/0/0/0 1000000000000000.5/0/0/0/0 ");
    EXPECT_EQ(ContourDefinitionList::LINESTYLES[0] + ContourDefinitionList::LINESTYLES[1] +
                  ContourDefinitionList::LINESTYLES[2],
              "CONTINUOUSDASHEDDOTTED");
}

TEST_F(ContourDefinitionFile, WhatAFileCannotHoldIsRefusedAndTheOldFileStays) {
    EXPECT_FALSE(m_List.Save(m_Path.c_str())) << "empty";
    EXPECT_EQ(m_Folder.NumFiles(), 0);
    m_Folder.Write("a.cdf", "old");
    const auto isSaved = [&](double first, double second, float width) {
        ContourDefinitionList list;
        EXPECT_GE(list.Add({.LineWidth = width, .Level = first}), 0);
        EXPECT_GE(list.Add({.Level = second}), 0);
        return list.Save(m_Path.c_str());
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(m_List.Save(m_Path.c_str()));
    EXPECT_FALSE(isSaved(1.0, infinity, 0.0F));
    EXPECT_FALSE(isSaved(1.0, 2.0, std::numeric_limits<float>::quiet_NaN()));
    EXPECT_FALSE(isSaved(1.0, 1.0000004, 0.0F));
    EXPECT_EQ(ErrorString::LastError().Cause(),
              m_Path + ": two levels would be stored as 1.000000");
    EXPECT_FALSE(isSaved(-1e-9, 0.0, 0.0F));
    EXPECT_EQ(Bytes(), "old");
    EXPECT_TRUE(isSaved(1.0, 1.0000006, 0.0F));
    // What was loaded twice is saved twice, and any order is looked through.
    EXPECT_TRUE(m_List.Load(m_Path.c_str()) && m_List.Load(m_Path.c_str()));
    EXPECT_TRUE(m_List.Save(m_Path.c_str()));
    EXPECT_EQ(m_List.NumContours(), 4);
    ContourDefinitionList apart;
    EXPECT_TRUE(
        Load("[Contour(0)]\nLevel=1\n[Contour(1)]\nLevel=9\n[Contour(2)]\nLevel=1.0000004", apart));
    EXPECT_FALSE(apart.Save(m_Path.c_str()));
}

}  // namespace
