// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/settings/section.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

Section Filled() {
    Section section("General");
    section += SectionKey("Alpha", 1);
    section += SectionKey("LongerName", 22, " note");
    return section;
}

TEST(Section, AccessByNameMakesAKeyOnceAndIgnoresCase) {
    Section section("S");
    section["Width"] << 1;
    section[std::string("WIDTH")] << 2;
    EXPECT_EQ(section.NumKeys(), 1);
    EXPECT_EQ(section[0].GetValue(), "2");
    EXPECT_EQ(*section[0].GetName(), "Width");
    EXPECT_TRUE(section.HasKey("wIDTH"));
    EXPECT_TRUE(section.HasKey(SectionKey("width", 5)));
    EXPECT_FALSE(section.HasKey("Widt"));
}

TEST(Section, AConstLookUpOfAMissingKeyYieldsTheSharedInvalidKey) {
    const Section section = Filled();
    const SectionKey& missing = section["None"];
    int target = 42;
    missing >> target;
    EXPECT_EQ(target, 42);
    EXPECT_EQ(&missing, &Section::m_ErrorKey);
    EXPECT_FALSE(missing.IsValid());
    EXPECT_EQ(section.NumKeys(), 2);
}

TEST(Section, ReferencesStayGoodWhileKeysAreAppended) {
    Section section("S");
    SectionKey& kept = section["Kept"];
    for (int i = 0; i < 1000; ++i) {
        section += std::to_string(i);
    }
    kept << "value";
    EXPECT_EQ(section[0].GetValue(), "value");
    EXPECT_EQ(section.NumKeys(), 1001);
}

TEST(Section, RemovingAnyKeyKeepsTheOrderOfTheOthers) {
    for (int removed = 0; removed < 40; ++removed) {
        Section section("S");
        for (int i = 0; i < 40; ++i) {
            section += std::to_string(i);
        }
        ASSERT_TRUE(section.RemoveKey(section[removed]));
        ASSERT_EQ(section.NumKeys(), 39);
        int expected = removed == 0 ? 1 : 0;
        for (const SectionKey& key : section.Keys()) {
            EXPECT_EQ(*key.GetName(), std::to_string(expected));
            expected += expected + 1 == removed ? 2 : 1;
        }
        section += "last";
        EXPECT_EQ(*section[39].GetName(), "last");
    }
}

TEST(Section, TellsKeysApartWhoseNamesHaveOneHash) {
    Section section("S");
    section["K4112366960"] << 1;
    section["K2663348725"] << 2;
    EXPECT_EQ(std::as_const(section)["k4112366960"].GetValue(), "1");
    EXPECT_TRUE(section.RemoveKey("k2663348725"));
    ASSERT_EQ(section.NumKeys(), 1);
    EXPECT_FALSE(section.HasKey("K2663348725"));
}

TEST(Section, CopiesShareNothing) {
    Section section = Filled();
    const Section copy = section;
    section["Alpha"] << 9;
    section.RemoveKey(section[1]);
    EXPECT_EQ(copy["Alpha"].GetValue(), "1");
    EXPECT_EQ(copy["LongerName"].GetComments(), " note");
    section = copy;
    EXPECT_EQ(section.NumKeys(), 2);
    section["Alpha"] << 9;
    EXPECT_EQ(copy[0].GetValue(), "1");
}

TEST(Section, SeveralKeysMayBearOneNameAndTheFirstIsFound) {
    Section section("S");
    EXPECT_TRUE(section.AddKey("A"));
    EXPECT_TRUE(section.AddKey(SectionKey("a", 2)));
    section["A"] << "first";
    EXPECT_EQ(section[0].GetValue(), "first");
    EXPECT_TRUE(section.RemoveKey("a"));
    ASSERT_EQ(section.NumKeys(), 1);
    EXPECT_EQ(section[0].GetValue(), "2");
    EXPECT_TRUE(section.RemoveKey(SectionKey("A")));
    EXPECT_FALSE(section.RemoveKey(std::string("A")));
}

TEST(Section, JoiningAppendsCopiesEvenOfItself) {
    Section section = Filled();
    section << Filled() << section;
    EXPECT_EQ(section.NumKeys(), 8);
    EXPECT_EQ(section[7].GetComments(), " note");
    EXPECT_EQ(*section.GetName(), "General");
    section.Clear();
    EXPECT_EQ(section.NumKeys(), 0);
    EXPECT_TRUE(section.IsValid());
}

TEST(Section, ChecksumFeedsValuesThenNamesInOrder) {
    CRCChecksum expected;
    expected += "1";
    expected += "Alpha";
    expected += "22";
    expected += "LongerName";
    Section section = Filled();
    EXPECT_EQ(section.ComputeChecksum(), expected.Value());
    section.AddChecksum();
    EXPECT_EQ(section.ComputeChecksum(), expected.Value());
    EXPECT_EQ(section["$checksum$"].GetValue(), std::to_string(expected.Value()));
}

TEST(Section, IsModifiedByEveryChangeOfAKeyAndByNoOther) {
    Section sealed = Filled();
    EXPECT_TRUE(sealed.IsModified());
    sealed.AddChecksum();
    EXPECT_FALSE(sealed.IsModified());

    Section harmless = sealed;
    harmless.SetComments("other");
    harmless.SetName(HashedString("Other"));
    harmless["Alpha"].SetComments("other");
    EXPECT_FALSE(harmless.IsModified());

    Section value = sealed;
    value["Alpha"] << 2;
    EXPECT_TRUE(value.IsModified());
    Section added = sealed;
    added += "";
    added[3] << "x";
    EXPECT_TRUE(added.IsModified());
    Section unreadable = sealed;
    unreadable["$CHECKSUM$"] << "abc";
    EXPECT_TRUE(unreadable.IsModified());
    unreadable.AddChecksum();
    EXPECT_FALSE(unreadable.IsModified());
    EXPECT_EQ(unreadable.NumKeys(), 3);
    EXPECT_EQ(*unreadable[2].GetName(), "$CHECKSUM$");
}

TEST(Section, ChecksumDependsOnTheOrderOfKeys) {
    Section reversed("General");
    reversed += SectionKey("LongerName", 22);
    reversed += SectionKey("Alpha", 1);
    EXPECT_NE(reversed.ComputeChecksum(), Filled().ComputeChecksum());
}

TEST(Section, WriteOffsetsAreTheGreatestLengthsOverAllKeys) {
    int name = -1;
    int value = -1;
    Section("Empty").GetWriteOffsets(name, value);
    EXPECT_EQ(name, 0);
    EXPECT_EQ(value, 0);
    Filled().GetWriteOffsets(name, value);
    EXPECT_EQ(name, 10);
    EXPECT_EQ(value, 2);
    Section sealed = Filled();
    sealed["$CHECKSUM$"] << "1234567890";
    sealed.GetWriteOffsets(name, value);
    EXPECT_EQ(name, 10);
    EXPECT_EQ(value, 10);
}

TEST(Section, IsComparedByNameAloneAndIgnoresANullComment) {
    Section a = Filled();
    EXPECT_EQ(a, Section("GENERAL"));
    a.SetComments("kept");
    a.SetComments(static_cast<const char*>(nullptr));
    EXPECT_EQ(a.GetComments(), "kept");
    EXPECT_FALSE(Section("").IsValid());
}

}  // namespace
