// SPDX-License-Identifier: MIT
#include "support/section_keys.h"
#include <marlin/base/crc_checksum.h>

#include <utility>

namespace {

Section Filled() {
    Section section("General");
    section += SectionKey("Alpha", 1);
    section += SectionKey("LongerName", 22, " note");
    return section;
}

const char* const filledKeys = "Alpha=1\nLongerName=22; note\n";

TEST(Section, AccessByNameMakesAKeyOnceAndIgnoresCase) {
    Section section("S");
    section["Width"] << 1;
    section[std::string("WIDTH")] << 2;
    EXPECT_EQ(KeysOf(section), "Width=2\n");
    EXPECT_TRUE(section.HasKey("wIDTH"));
    EXPECT_TRUE(section.HasKey(std::string("wIDTH")));
    EXPECT_TRUE(section.HasKey(SectionKey("width", 5)));
    EXPECT_FALSE(section.HasKey("Widt"));
}

TEST(Section, AConstLookUpOfAMissingKeyYieldsTheSharedInvalidKey) {
    const Section section = Filled();
    int target = 42;
    section["None"] >> target;
    EXPECT_EQ(target, 42);
    EXPECT_EQ(&section[std::string("None")], &Section::m_ErrorKey);
    EXPECT_FALSE(Section::m_ErrorKey.IsValid());
    EXPECT_EQ(KeysOf(section), filledKeys);
}

TEST(Section, RemovingAnyKeyKeepsTheOrderOfTheOthersAndAppendingTheirPlaces) {
    for (int removed = 0; removed < 40; ++removed) {
        Section section("S");
        SectionKey* const kept = &section["0"];
        std::string expected = removed == 0 ? "" : "0=\n";
        for (int i = 1; i < 40; ++i) {
            section += std::to_string(i);
            expected += i == removed ? "" : std::to_string(i) + "=\n";
        }
        EXPECT_EQ(&section[0], kept);
        ASSERT_TRUE(section.RemoveKey(section[removed]));
        section += "last";
        EXPECT_EQ(KeysOf(section), expected + "last=\n");
    }
}

TEST(Section, TellsKeysApartWhoseNamesHaveOneHash) {
    Section section("S");
    section["K4112366960"] << 1;
    section["K2663348725"] << 2;
    EXPECT_EQ(std::as_const(section)["k4112366960"].GetValue(), "1");
    EXPECT_TRUE(section.RemoveKey("k2663348725"));
    EXPECT_EQ(KeysOf(section), "K4112366960=1\n");
}

TEST(Section, CopiesShareNothing) {
    Section section = Filled();
    const Section copy = section;
    section["Alpha"] << 9;
    section.RemoveKey(section[1]);
    EXPECT_EQ(KeysOf(copy), filledKeys);
    section = copy;
    EXPECT_EQ(KeysOf(section), filledKeys);
    section["Alpha"] << 9;
    EXPECT_EQ(KeysOf(copy), filledKeys);
}

TEST(Section, SeveralKeysMayBearOneNameAndTheFirstIsFound) {
    Section section("S");
    EXPECT_TRUE(section.AddKey("A"));
    EXPECT_TRUE(section.AddKey(SectionKey("a", 2)));
    EXPECT_TRUE(section.AddKey(std::string("b")));
    section["A"] << "first";
    EXPECT_EQ(KeysOf(section), "A=first\na=2\nb=\n");
    EXPECT_TRUE(section.RemoveKey("a"));
    EXPECT_EQ(KeysOf(section), "a=2\nb=\n");
    EXPECT_TRUE(section.RemoveKey(SectionKey("A")));
    EXPECT_FALSE(section.RemoveKey(std::string("A")));
}

TEST(Section, JoiningAppendsCopiesEvenOfItself) {
    Section section = Filled();
    section << Filled() << section;
    const std::string twice = std::string(filledKeys) + filledKeys;
    EXPECT_EQ(KeysOf(section), twice + twice);
    section.Clear();
    EXPECT_EQ(KeysOf(section), "");
    EXPECT_EQ(*section.GetName(), "General");
}

TEST(Section, ChecksumFeedsValuesThenNamesInOrder) {
    CRCChecksum expected;
    expected += "1Alpha22LongerName";
    Section section = Filled();
    EXPECT_EQ(section.ComputeChecksum(), expected.Value());
    section["$checksum$"] << "old";
    section.AddChecksum();
    EXPECT_EQ(KeysOf(section),
              filledKeys + ("$checksum$=" + std::to_string(expected.Value())) + "\n");
}

TEST(Section, IsModifiedByEveryChangeOfAKeyAndByNoOther) {
    Section sealed = Filled();
    EXPECT_TRUE(sealed.IsModified());
    sealed.AddChecksum();
    const auto isModifiedBy = [&](auto change) {
        Section section = sealed;
        change(section);
        return section.IsModified();
    };
    EXPECT_FALSE(isModifiedBy([](Section& section) { section.SetComments("other"); }));
    EXPECT_FALSE(isModifiedBy([](Section& section) { section.SetName(HashedString("Other")); }));
    EXPECT_FALSE(isModifiedBy([](Section& section) { section["Alpha"].SetComments("other"); }));
    EXPECT_FALSE(isModifiedBy([](Section& section) { section.AddChecksum(); }));
    EXPECT_TRUE(isModifiedBy([](Section& section) { section["Alpha"] << 2; }));
    EXPECT_TRUE(isModifiedBy([](Section& section) { section += SectionKey("", "x"); }));
    EXPECT_TRUE(isModifiedBy([](Section& section) { section["$CHECKSUM$"] << "abc"; }));
}

TEST(Section, WriteOffsetsAreTheGreatestLengthsOverAllKeys) {
    const auto offsets = [](const Section& section) {
        std::pair<int, int> lengths(-1, -1);
        section.GetWriteOffsets(lengths.first, lengths.second);
        return lengths;
    };
    EXPECT_EQ(offsets(Section("Empty")), std::pair(0, 0));
    Section section = Filled();
    EXPECT_EQ(offsets(section), std::pair(10, 2));
    section["$CHECKSUM$"] << "1234567890";
    EXPECT_EQ(offsets(section), std::pair(10, 10));
}

TEST(Section, IsComparedByNameAloneAndIgnoresANullComment) {
    Section section = Filled();
    EXPECT_EQ(section, Section("GENERAL"));
    section.SetComments("kept");
    section.SetComments(static_cast<const char*>(nullptr));
    EXPECT_EQ(section.GetComments(), "kept");
    EXPECT_FALSE(Section("").IsValid());
}

}  // namespace
