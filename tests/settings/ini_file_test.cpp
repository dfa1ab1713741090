// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/settings/ini_file.h>

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The keys as "name|value|comment", sections as "[name|comment]".
std::vector<std::string> Dump(const IniFile& file) {
    std::vector<std::string> lines;
    for (const Section& section : file.Sections()) {
        lines.push_back("[" + *section.GetName() + "|" + section.GetComments() + "]");
        for (const SectionKey& key : section.Keys()) {
            lines.push_back(*key.GetName() + "|" + key.GetValue() + "|" + key.GetComments());
        }
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(IniFile, ReadsLinesAsTheFormatSays) {
    struct Case {
        const char* Text;
        Lines Expected;
    };
    const std::vector<Case> cases = {
        {"", {}},
        {"\n\nkey = 1\n; comment\n[open\n", {}},
        {"[ Name ]\n", {"[ Name |]"}},
        {"\xEF\xBB\xBF[Name]\n\xEF\xBB\xBF=1", {"[Name|]", "\xEF\xBB\xBF|1|"}},
        {"  [Name] tail\r\n", {"[Name|]"}},
        {"[Name] ;comment\n", {"[Name|comment]"}},
        {"[A]]\n", {"[A|]"}},
        {"[S]\n[Name\n", {"[S|]", "[Name||"}},
        {"[S]\nkey=\n", {"[S|]", "key||"}},
        {"[S]\n=value\n", {"[S|]", "|value|"}},
        {"[S]\nkey", {"[S|]", "key||"}},
        {"[S]\n a = b = c \n", {"[S|]", "a|b = c|"}},
        {"[S]\na = b ; c ; d\r\n", {"[S|]", "a|b| c ; d"}},
        {"[S]\na = b;\n", {"[S|]", "a|b|"}},
        {"[S]\n; note\n;\n", {"[S|]", "|| note", "||"}},
        {"[S]\na\t=\t1\t\r\n\r\n  \nb=2", {"[S|]", "a|1|", "b|2|"}},
        {"[S]\na=1\na=2\n", {"[S|]", "a|1|", "a|2|"}},
        {"[S]\n\xE4=\xF6\xFF\n", {"[S|]", "\xE4|\xF6\xFF|"}},
    };
    for (const Case& c : cases) {
        IniFile file;
        EXPECT_TRUE(file.OpenText(c.Text).Empty()) << c.Text;
        EXPECT_EQ(Dump(file), c.Expected) << c.Text;
    }
}

TEST(IniFile, BadHeadersEndTheReadingAndKeepTheSectionsBefore) {
    struct Case {
        const char* Text;
        const char* Message;
        Lines Kept;
    };
    const std::vector<Case> cases = {
        {"[]\n", "Invalid section definition on line 1", {}},
        {"\n\n[A]\na=1\n[B]\n[] x\n[C]\n",
         "Invalid section definition on line 6",
         {"[A|]", "a|1|"}},
        {"[A]\na=1\n[B]\n[a]\nb=1\n", "Error! Duplicate sectiona found!", {"[A|]", "a|1|", "[B|]"}},
    };
    for (const Case& c : cases) {
        IniFile file;
        EXPECT_EQ(file.OpenText(c.Text).Text(), c.Message);
        EXPECT_EQ(Dump(file), c.Kept);
    }
}

TEST(IniFile, WritesTheDocumentedExampleByteForByteAndReadsItBack) {
    const TemporaryFolder folder;
    IniFile file;
    Section& section = file["General"];
    section += SectionKey("Alpha", 1);
    section += SectionKey("LongerName", 22, " note");
    section += SectionKey("", "", "a comment line");
    section += SectionKey("Color", 255);
    const std::string expected =
        "[General]\r\n"
        "Alpha      = 1\r\n"
        "LongerName = 22  ; note\r\n"
        ";a comment line\r\n"
        "Color      = 255\r\n"
        "\r\n";
    EXPECT_EQ(file.Text(), expected);
    ASSERT_TRUE(file.Save(folder.File("a.ini")).Empty());
    EXPECT_EQ(TemporaryFolder::Read(folder.File("a.ini")), expected);
    const IniFile read(folder.File("a.ini"));
    EXPECT_EQ(Dump(read), Dump(file));
    EXPECT_EQ(folder.NumFiles(), 1);
}

TEST(IniFile, KeepsCommentsOfSectionsAndSealsAcrossASaveAndOpen) {
    IniFile file;
    Section& section = file["S"];
    section.SetComments("about it");
    section["A"] << -0.5;
    section.AddChecksum();
    IniFile read;
    ASSERT_TRUE(read.OpenText(file.Text()).Empty());
    EXPECT_EQ(read[0].GetComments(), "about it");
    EXPECT_FALSE(read[0].IsModified());
}

TEST(IniFile, UnnamedKeysKeepTheirCommentAlone) {
    IniFile file;
    file["S"] += SectionKey("", "lost", " kept");
    file["S"] += SectionKey("", "lost");
    EXPECT_EQ(file.Text(), "[S]\r\n; kept\r\n\r\n\r\n");
}

TEST(IniFile, ReadsAndWritesLinesLongerThanAnyBuffer) {
    const TemporaryFolder folder;
    const std::string longValue(300'000, 'x');
    const std::string path =
        folder.Write("a.ini", "[S]\nfirst=" + longValue + "\nsecond=2\n[T]\nlast=" + longValue);
    const IniFile file(path);
    EXPECT_EQ(file[0][0].GetValue(), longValue);
    EXPECT_EQ(file[0][1].GetValue(), "2");
    EXPECT_EQ(file[1][0].GetValue(), longValue);
    EXPECT_EQ(file.Text(), "[S]\r\nfirst  = " + longValue +
                               "\r\nsecond = 2\r\n\r\n[T]\r\nlast = " + longValue + "\r\n\r\n");
}

TEST(IniFile, TellsSectionsApartWhoseNamesHaveOneHash) {
    IniFile file;
    ASSERT_TRUE(file.OpenText("[K4112366960]\na=1\n[K2663348725]\na=2\n").Empty());
    EXPECT_EQ(file["k2663348725"]["a"].GetValue(), "2");
    EXPECT_TRUE(file.RenameSection("K4112366960", "Other"));
    EXPECT_FALSE(file.HasSection("K4112366960"));
}

TEST(IniFile, AFileThatIsNotReadToItsEndLeavesTheSectionsCompletedBefore) {
    const TemporaryFolder folder;
    const std::string endless(64 * 1024 * 1024 + 1, 'x');
    IniFile file;
    const std::string path = folder.Write("a.ini", "[A]\na=1\n[B]\nb=" + endless);
    EXPECT_EQ(file.Open(path).Cause(), path + ": File too large");
    EXPECT_EQ(file.Text(), "[A]\r\na = 1\r\n\r\n");
}

TEST(IniFile, SaysWhyAFileCannotBeRead) {
    const TemporaryFolder folder;
    IniFile file;
    file["Old"];
    EXPECT_EQ(file.Open(std::string()).Text(), ErrorString(false).Text());
    EXPECT_TRUE(file.Empty());
    const std::string missing = folder.File("none.ini");
    const ErrorString error = file.Open(missing);
    EXPECT_EQ(error.Text(), "Error opening \"" + missing + "\" for reading!");
    EXPECT_EQ(error.Cause(), missing + ": No such file or directory");
    EXPECT_EQ(file.Open(folder.File("")).Cause(), folder.File("") + ": Is a directory");
    EXPECT_EQ(file.Open(std::string("/dev/zero")).Cause(), "/dev/zero: File too large");
    EXPECT_EQ(IniFile(folder.Write("dup.ini", "[A]\n[a]\n")).NumSections(), 1);
}

TEST(IniFile, SavingNothingFailsAndLeavesTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.ini", "old");
    EXPECT_FALSE(IniFile().Save(path).Empty());
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
    IniFile file;
    file["S"];
    const ErrorString error = file.Save(folder.File("none/a.ini"));
    EXPECT_EQ(error.Text(), ErrorString(false).Text());
    EXPECT_EQ(error.Cause(), folder.File("none/a.ini") + ": No such file or directory");
}

TEST(IniFile, RefusesWhatWouldReadBackAsOtherSectionsOrKeys) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.ini", "old");
    const auto causeOf = [&](const Section& section) {
        IniFile file;
        file["First"]["k"] << 1;
        file["Second"] = section;
        return file.Save(path).Cause();
    };
    EXPECT_EQ(causeOf(Section("")), path + ": section \"\": no name");
    EXPECT_EQ(causeOf(Section("a]")), path + ": section \"a]\": \"]\" in the name");
    EXPECT_EQ(causeOf(Section("a\n")), path + ": section \"a\n\": line end in the name");
    Section commented("S");
    commented.SetComments("a\n[b]");
    EXPECT_EQ(causeOf(commented), path + ": section \"S\": line end in the comment");
    struct Case {
        SectionKey Key;
        const char* Reason;
    };
    for (const Case& c : {Case{SectionKey("k\n", 1), "line end in the name"},
                          Case{SectionKey(" [k", 1), "\"[\" begins the name"},
                          Case{SectionKey(";k", 1), "\";\" in the name"},
                          Case{SectionKey("k=", 1), "\"=\" in the name"},
                          Case{SectionKey("k", "1\n[b]"), "line end in the value"},
                          Case{SectionKey("", "", "1\r\nb=2"), "line end in the comment"}}) {
        Section section("S");
        section += c.Key;
        EXPECT_EQ(causeOf(section),
                  path + ": section \"S\", key \"" + *c.Key.GetName() + "\": " + c.Reason);
    }
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
    EXPECT_EQ(causeOf(Section("[a")), "");
}

TEST(IniFile, ListsTheKeysThatLoseSomethingInASaveAndLoad) {
    IniFile file;
    file["Whole"] += SectionKey("a", "b = [c]", " d ; e");
    file["Whole"] += SectionKey("", "", " f");
    for (const SectionKey& key :
         {SectionKey("whole", ""), SectionKey("a", "b;c"), SectionKey("a", " b"),
          SectionKey("a", "b\t"), SectionKey(" a", "b"), SectionKey("a", "b", "c "),
          SectionKey("", "b"), SectionKey("whole", "")}) {
        file["Cut"] += key;
    }
    using Place = IniFile::KeyPlace;
    EXPECT_EQ(file.LosingKeys(),
              (std::vector<Place>{{1, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}}));
}

TEST(IniFile, AFileObjectFindsTheFirstOfTwoKeysOfAName) {
    IniFile file;
    file["A"] += SectionKey("k", 1);
    file["A"] += SectionKey("K", 2);
    FileObject object;
    for (const char* const key : {"k", "other", "K"}) {
        object.SetEntry("A", key, "old", FileObject::APPEND);
    }
    EXPECT_TRUE(file.Save(object));
    CString value;
    EXPECT_TRUE(object.GetEntry("A", "other", value) && value == "old");
    EXPECT_TRUE(object.GetEntry("A", "K", value) && value == "1");
    IniFile read;
    EXPECT_TRUE(read.Open(object));
    EXPECT_EQ(Dump(read), (Lines{"[A|]", "other|old|", "k|1|", "K|2|"}));
}

TEST(IniFile, OpensAndSavesByAFileName) {
    const TemporaryFolder folder;
    const FileName path(CString(std::string_view(folder.Write("a.ini", "[A]\n"))));
    IniFile file;
    EXPECT_TRUE(file.Open(path).Empty());
    EXPECT_TRUE(file.HasSection("A"));
    file["B"];
    EXPECT_TRUE(file.Save(path).Empty());
    EXPECT_EQ(IniFile(folder.File("a.ini")).NumSections(), 2);
}

TEST(IniFile, AddSectionReplacesInPlace) {
    IniFile file;
    file["A"]["old"] << 1;
    file["B"];
    Section replacement("a");
    replacement["new"] << 2;
    EXPECT_TRUE(file.AddSection(replacement));
    EXPECT_EQ(Dump(file), (Lines{"[a|]", "new|2|", "[B|]"}));
    EXPECT_FALSE(file.AddSection(Section("")));
    EXPECT_TRUE(file.AddSection(Section("C")));
    EXPECT_EQ(file.NumSections(), 3);
}

TEST(IniFile, FindsRenamesAndRemovesByNameIgnoringCase) {
    IniFile file;
    file["A"];
    file["B"];
    EXPECT_TRUE(file.HasSection("a"));
    EXPECT_TRUE(file.HasSection(Section("b")));
    EXPECT_FALSE(file.RenameSection("A", "a"));
    EXPECT_FALSE(file.RenameSection("A", "b"));
    EXPECT_FALSE(file.RenameSection("none", "C"));
    EXPECT_TRUE(file.RenameSection("a", "C"));
    EXPECT_EQ(*file[0].GetName(), "C");
    const IniFile& constant = file;
    EXPECT_EQ(&constant["A"], &IniFile::m_ErrorSection);
    EXPECT_FALSE(constant["A"].IsValid());
    EXPECT_TRUE(file.RemoveSection("c"));
    EXPECT_FALSE(file.RemoveSection(std::string("c")));
    EXPECT_TRUE(file.RemoveSection(Section("B")));
    EXPECT_TRUE(file.Empty());
}

TEST(IniFile, GoesThroughAFileObjectWithoutItsUnnamedKeys) {
    IniFile file;
    file["A"] += SectionKey("k", 1, " comment");
    file["A"] += SectionKey("", "", "a line");
    file["B"]["k"] << "x";
    FileObject object;
    EXPECT_TRUE(file.Save(object));
    IniFile read;
    read["Old"];
    EXPECT_TRUE(read.Open(object));
    EXPECT_EQ(Dump(read), (Lines{"[A|]", "k|1|", "[B|]", "k|x|"}));
}

}  // namespace
