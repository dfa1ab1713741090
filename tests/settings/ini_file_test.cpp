// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/settings/ini_file.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Sections as "[name|comment]", each followed by its keys as "name|value|comment" and a line feed.
std::string Dump(const IniFile& file) {
    std::string text;
    for (const Section& section : file.Sections()) {
        text += "[" + *section.GetName() + "|" + section.GetComments() + "]";
        for (const SectionKey& key : section.Keys()) {
            text += *key.GetName() + "|" + key.GetValue() + "|" + key.GetComments() + "\n";
        }
    }
    return text;
}

// Bad headers end the reading and keep the sections before them.
TEST(IniFile, ReadsLinesAsTheFormatSays) {
    struct Case {
        const char* Text;
        const char* Expected;
        const char* Message = "";
    };
    const Case cases[] = {
        {"", ""},
        {"\n\nkey = 1\n; comment\n[open\n", ""},
        {"[ Name ]\n", "[ Name |]"},
        {"\xEF\xBB\xBF[Name]\n\xEF\xBB\xBF=1", "[Name|]\xEF\xBB\xBF|1|\n"},
        {"  [Name] tail\r\n", "[Name|]"},
        {"[Name] ;comment\n", "[Name|comment]"},
        {"[A]]\n", "[A|]"},
        {"[S]\n[Name\n", "[S|][Name||\n"},
        {"[S]\nkey=\n", "[S|]key||\n"},
        {"[S]\n=value\n", "[S|]|value|\n"},
        {"[S]\nkey", "[S|]key||\n"},
        {"[S]\n a = b = c \n", "[S|]a|b = c|\n"},
        {"[S]\na = b ; c ; d\r\n", "[S|]a|b| c ; d\n"},
        {"[S]\na = b;\n", "[S|]a|b|\n"},
        {"[S]\n; note\n;\n", "[S|]|| note\n||\n"},
        {"[S]\na\t=\t1\t\r\n\r\n  \nb=2", "[S|]a|1|\nb|2|\n"},
        {"[S]\na=1\na=2\n", "[S|]a|1|\na|2|\n"},
        {"[S]\n\xE4=\xF6\xFF\n", "[S|]\xE4|\xF6\xFF|\n"},
        {"[]\n", "", "Invalid section definition on line 1"},
        {"\n\n[A]\na=1\n[B]\n[] x\n[C]\n", "[A|]a|1|\n", "Invalid section definition on line 6"},
        {"[A]\na=1\n[B]\n[a]\nb=1\n", "[A|]a|1|\n[B|]", "Error! Duplicate sectiona found!"}};
    for (const Case& c : cases) {
        IniFile file;
        EXPECT_EQ(file.OpenText(c.Text).Text(), c.Message) << c.Text;
        EXPECT_EQ(Dump(file), c.Expected) << c.Text;
    }
}

TEST(IniFile, WritesTheDocumentedExampleByteForByteAndReadsItBack) {
    const TemporaryFolder folder;
    IniFile file;
    Section& section = file["General"];
    section.SetComments("about it");
    section += SectionKey("Alpha", 1);
    section += SectionKey("LongerName", 22, " note");
    section += SectionKey("", "", "a comment line");
    section += SectionKey("Color", 255);
    section += SectionKey("", "lost");
    file["B"].AddChecksum();
    const std::string expected =
        "[General] ;about it\r\n"
        "Alpha      = 1\r\n"
        "LongerName = 22   ; note\r\n"
        ";a comment line\r\n"
        "Color      = 255\r\n"
        "\r\n"
        "\r\n"
        "[B]\r\n"
        "$CHECKSUM$ = 0\r\n"
        "\r\n";
    EXPECT_EQ(file.Text(), expected);
    const FileName path(CString(folder.File("a.ini").c_str()));
    ASSERT_TRUE(file.Save(path).Empty());
    EXPECT_EQ(TemporaryFolder::Read(folder.File("a.ini")), expected);
    EXPECT_EQ(folder.NumFiles(), 1);
    IniFile read;
    ASSERT_TRUE(read.Open(path).Empty());
    EXPECT_EQ(Dump(read),
              "[General|about it]Alpha|1|\nLongerName|22| note\n||a comment line\nColor|255|\n"
              "[B|]$CHECKSUM$|0|\n");
    EXPECT_FALSE(read["B"].IsModified());
}

TEST(IniFile, ReadsAndWritesLinesLongerThanAnyBuffer) {
    const TemporaryFolder folder;
    const std::string longValue(300'000, 'x');
    const IniFile file(
        folder.Write("a.ini", "[S]\nfirst=" + longValue + "\nsecond=2\n[T]\nlast=" + longValue));
    EXPECT_EQ(file.Text(), "[S]\r\nfirst  = " + longValue +
                               "\r\nsecond = 2\r\n\r\n[T]\r\nlast = " + longValue + "\r\n\r\n");
}

// More of them than any table for the reading holds at first.
TEST(IniFile, TellsManySectionsApartAndThoseWhoseNamesHaveOneHash) {
    std::string text = "[K4112366960]\r\n\r\n[K2663348725]\r\n\r\n";
    for (int i = 0; i < 1000; ++i) {
        text += "[" + std::to_string(i) + "]\r\n\r\n";
    }
    IniFile file;
    ASSERT_TRUE(file.OpenText(text).Empty());
    EXPECT_EQ(file.Text(), text);
    EXPECT_EQ(file.OpenText(text + "[k2663348725]").Text(),
              "Error! Duplicate sectionk2663348725 found!");
    EXPECT_TRUE(file.RenameSection("K4112366960", "Other"));
    EXPECT_FALSE(file.HasSection("K4112366960"));
}

TEST(IniFile, SaysWhyAFileCannotBeRead) {
    const TemporaryFolder folder;
    const std::string endless(64 * 1024 * 1024 + 1, 'x');
    const std::pair<std::string, const char*> cases[] = {
        {folder.File("none"), ": No such file or directory"},
        {folder.File(""), ": Is a directory"},
        {"/dev/zero", ": File too large"},
        {folder.Write("endless", "[A]\na=1\n[B]\nb=" + endless), ": File too large"}};
    IniFile file;
    for (const auto& [path, reason] : cases) {
        file["Old"];
        const ErrorString error = file.Open(path);
        EXPECT_EQ(error.Text(), "Error opening \"" + path + "\" for reading!");
        EXPECT_EQ(error.Cause(), path + reason);
        EXPECT_FALSE(file.HasSection("Old"));
    }
    EXPECT_EQ(Dump(file), "[A|]a|1|\n") << "the sections completed before";
    EXPECT_EQ(file.Open(std::string()).Text(), ErrorString(false).Text());
    EXPECT_TRUE(file.Empty());
}

TEST(IniFile, RefusesWhatWouldReadBackAsOtherSectionsOrKeysAndLeavesTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.ini", "old");
    const auto causeOf = [&](const Section& section) {
        IniFile file;
        file["First"]["k"] << 1;
        file["Second"] = section;
        const ErrorString error = file.Save(path);
        EXPECT_EQ(error.Text(), ErrorString(false).Text());
        return error.Cause();
    };
    EXPECT_EQ(causeOf(Section("")), path + ": section \"\": no name");
    EXPECT_EQ(causeOf(Section("a]")), path + ": section \"a]\": \"]\" in the name");
    EXPECT_EQ(causeOf(Section("a\n")), path + ": section \"a\n\": line end in the name");
    EXPECT_EQ(causeOf(Section("FIRST")), path + ": section \"FIRST\": a second one of its name");
    Section commented("S");
    commented.SetComments("a\n[b]");
    EXPECT_EQ(causeOf(commented), path + ": section \"S\": line end in the comment");
    const std::pair<SectionKey, const char*> cases[] = {
        {SectionKey("k\n", 1), "line end in the name"},
        {SectionKey(" [k", 1), "\"[\" begins the name"},
        {SectionKey(";k", 1), "\";\" in the name"},
        {SectionKey("k=", 1), "\"=\" in the name"},
        {SectionKey("k", "1\n[b]"), "line end in the value"},
        {SectionKey("", "", "1\r\nb=2"), "line end in the comment"}};
    for (const auto& [key, reason] : cases) {
        Section section("S");
        section += key;
        section += SectionKey("also=", "bad");
        EXPECT_EQ(causeOf(section),
                  path + ": section \"S\", key \"" + *key.GetName() + "\": " + reason);
    }
    EXPECT_FALSE(IniFile().Save(path).Empty()) << "without sections";
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
    IniFile good;
    good["[a"] += SectionKey("", "not\nwritten");
    EXPECT_EQ(good.Save(folder.File("none/a.ini")).Cause(),
              folder.File("none/a.ini") + ": No such file or directory");
    EXPECT_TRUE(good.Save(path).Empty());
}

TEST(IniFile, ListsTheKeysThatLoseSomethingInASaveAndLoad) {
    IniFile file;
    for (const SectionKey& key :
         {SectionKey("a", "b;c"), SectionKey("a", " b"), SectionKey("a", "b\t"),
          SectionKey(" a", "b"), SectionKey("a", "b", "c "), SectionKey("", "b"),
          SectionKey("whole", "")}) {
        file["Cut"] += key;
    }
    file["Whole"] += SectionKey("a", "b = [c]", " d ; e");
    file["Whole"] += SectionKey("", "", " f");
    file["Last"] += SectionKey("a ");
    EXPECT_EQ(file.LosingKeys(), (std::vector<IniFile::KeyPlace>{
                                     {0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}, {0, 5}, {2, 0}}));
}

TEST(IniFile, GoesThroughAFileObjectWithoutItsUnnamedKeysAndKeepsTheFirstOfANameFirst) {
    IniFile file;
    file["A"] += SectionKey("k", 1, " comment");
    file["A"] += SectionKey("K", 2);
    file["A"] += SectionKey("", "", "a line");
    file["B"]["k"] << "x";
    FileObject object;
    for (const char* const key : {"k", "other", "K"}) {
        object.SetEntry("A", key, "old", FileObject::APPEND);
    }
    EXPECT_TRUE(file.Save(object));
    CString value;
    EXPECT_TRUE(object.GetEntry("A", "other", value) && value == "old");
    EXPECT_TRUE(object.GetEntry("A", "K", value) && value == "1");
    IniFile read;
    read["Old"];
    EXPECT_TRUE(read.Open(object));
    EXPECT_EQ(Dump(read), "[A|]other|old|\nk|1|\nK|2|\n[B|]k|x|\n");
}

TEST(IniFile, AddsReplacesFindsRenamesAndRemovesByNameIgnoringCase) {
    IniFile file;
    file["A"]["old"] << 1;
    file["B"];
    Section replacement("a");
    replacement["new"] << 2;
    EXPECT_TRUE(file.AddSection(replacement));
    EXPECT_FALSE(file.AddSection(Section("")));
    EXPECT_TRUE(file.AddSection(Section("C")));
    EXPECT_EQ(Dump(file), "[a|]new|2|\n[B|][C|]");
    EXPECT_TRUE(file.HasSection("A"));
    EXPECT_TRUE(file.HasSection(Section("b")));
    EXPECT_FALSE(file.RenameSection("A", "a"));
    EXPECT_FALSE(file.RenameSection("A", "b"));
    EXPECT_FALSE(file.RenameSection("none", "D"));
    EXPECT_TRUE(file.RenameSection("a", "D"));
    const IniFile& constant = file;
    EXPECT_EQ(&constant["A"], &IniFile::m_ErrorSection);
    EXPECT_FALSE(constant["A"].IsValid());
    EXPECT_TRUE(file.RemoveSection("d"));
    EXPECT_FALSE(file.RemoveSection(std::string("d")));
    EXPECT_TRUE(file.RemoveSection(Section("B")));
    EXPECT_EQ(Dump(file), "[C|]");
}

}  // namespace
