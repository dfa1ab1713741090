// SPDX-License-Identifier: MIT
#include "support/temporary_folder.h"
#include <marlin/base/files/file_object.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

// Every section and entry in the order of the walk, each behind a blank.
std::string WalkOver(const FileObject& file) {
    std::string walk;
    FobjSection cursor;
    CString section;
    CString key;
    CString value;
    for (bool more = file.GetFirstSectionEntry(cursor, section); more;
         more = file.GetNextSectionEntry(cursor, section)) {
        walk.append(" [").append(section.View()) += ']';
        for (bool entry = file.GetFirstMapEntry(cursor, section, key, value); entry;
             entry = file.GetNextMapEntry(cursor, key, value)) {
            walk.append(" ").append(key.View()).append("=").append(value.View());
        }
    }
    return walk;
}

TEST(FileObject, ASettingsFileIsWalkedInItsOrder) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.ini",
                                          "before = 1\r\n[B];note\r\nk = 1 ; c\r\nl=\r\nK = 2\n"
                                          "; comment\n= unnamed\n[Empty]\n[A]\nz = x = y\xE4");
    FileObject file;
    ASSERT_TRUE(file.FileOpen(path.c_str(), 0x20));
    EXPECT_EQ(WalkOver(file), " [B] k=1 l= K=2 [Empty] [A] z=x = y\xE4");
}

TEST(FileObject, ASavedFileReadsBackAsItWas) {
    const TemporaryFolder folder;
    FileObject file;
    file.SetEntry("General", "LongerName", "22", FileObject::APPEND);
    file.SetEntry("General", "A", "1", FileObject::APPEND);
    file.SetEntry("Other", "A", "", FileObject::APPEND);
    ASSERT_TRUE(file.FileSave(folder.File("b.ini").c_str(), 0x1011));
    EXPECT_EQ(TemporaryFolder::Read(folder.File("b.ini")),
              "[General]\r\nLongerName = 22\r\nA          = 1\r\n\r\n[Other]\r\nA = \r\n\r\n");
    FileObject again;
    ASSERT_TRUE(again.FileOpen(folder.File("b.ini").c_str(), 0x20));
    EXPECT_EQ(WalkOver(again), WalkOver(file));
}

TEST(FileObject, AnEntryIsAppendedOrTakesTheFirstOnesPlace) {
    FileObject file;
    EXPECT_TRUE(file.SetEntry("S", "Key", "1", FileObject::REPLACE));
    EXPECT_TRUE(file.SetEntry("s", "KEY", "2", FileObject::APPEND));
    EXPECT_TRUE(file.SetEntry("S", "key", "3", FileObject::REPLACE));
    EXPECT_FALSE(file.SetEntry("", "Key", "4", FileObject::APPEND));
    EXPECT_FALSE(file.SetEntry("T", "", "4", FileObject::APPEND));
    EXPECT_EQ(WalkOver(file), " [S] Key=3 KEY=2");
    CString value;
    EXPECT_TRUE(file.GetEntry("s", "kEY", value));
    EXPECT_STREQ(value, "3");
}

TEST(FileObject, LookUpsFollowARemovedSection) {
    FileObject file;
    for (const char* name : {"A", "B", "C"}) {
        file.SetEntry(name, "Name", name, FileObject::APPEND);
    }
    EXPECT_TRUE(file.RemoveSection("b"));
    EXPECT_FALSE(file.RemoveSection("B"));
    EXPECT_EQ(WalkOver(file), " [A] Name=A [C] Name=C");
    CString value("kept");
    FobjSection cursor;
    CString key;
    EXPECT_FALSE(file.GetEntry("B", "Name", value));
    EXPECT_FALSE(file.GetEntry("C", "Other", value));
    EXPECT_FALSE(file.GetFirstMapEntry(cursor, "B", key, value));
    EXPECT_FALSE(file.GetNextMapEntry(cursor, key, value));
    EXPECT_STREQ(value, "kept");
}

TEST(FileObject, AFileThatDoesNotReadEmptiesTheObjectAndSaysWhy) {
    const TemporaryFolder folder;
    const std::pair<std::string, std::string> table[] = {
        {folder.File("missing"), "Error opening \"" + folder.File("missing") + "\" for reading!"},
        {folder.File(""), "Error opening \"" + folder.File("") + "\" for reading!"},
        {folder.Write("bad", "[A]\nk=1\n[]\n"), "Invalid section definition on line 3"},
        {folder.Write("twice", "[A]\n[a]\n"), "Error! Duplicate sectiona found!"}};
    for (const auto& [path, message] : table) {
        FileObject file;
        file.SetEntry("S", "Key", "1", FileObject::APPEND);
        EXPECT_FALSE(file.FileOpen(path.c_str(), 0x20));
        EXPECT_EQ(ErrorString::LastError().Text(), message);
        EXPECT_EQ(WalkOver(file), "");
    }
}

TEST(FileObject, ASaveThatFailsOrWouldReadBackAsSomethingElseSaysSo) {
    const TemporaryFolder folder;
    EXPECT_FALSE(FileObject().FileSave(folder.File("no/folder").c_str()));
    EXPECT_EQ(ErrorString::LastError().Text(),
              folder.File("no/folder") + ": No such file or directory");
    const std::string path = folder.Write("a", "old");
    for (const auto& [section, key, value] :
         {std::tuple("a]", "k", "v"), std::tuple("a", "[k", "v"), std::tuple("a", "k", "v\n[b]")}) {
        FileObject file;
        file.SetEntry(section, key, value, FileObject::APPEND);
        EXPECT_FALSE(file.FileSave(path.c_str())) << section;
        EXPECT_TRUE(ErrorString::LastError().Cause().starts_with(path + ": section \"" + section));
    }
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
}

}  // namespace
