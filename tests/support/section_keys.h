// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/section.h>

#include <initializer_list>
#include <string>

#include <gtest/gtest.h>

/// The keys of a section in their order, each as "name=value" or "name=value;comment" and a line
/// feed.
inline std::string KeysOf(const Section& section) {
    std::string text;
    for (int i = 0; i < section.NumKeys(); ++i) {
        const SectionKey& key = section[i];
        text += *key.GetName() + "=" + key.GetValue();
        if (!key.GetComments().empty()) {
            text += ";" + key.GetComments();
        }
        text += "\n";
    }
    return text;
}

/// The keys that a record writes.
template <class Record>
std::string WrittenKeys(const Record& record) {
    Section section("Record");
    EXPECT_TRUE(record.Write(section));
    return KeysOf(section);
}

/// What a record becomes that reads a section of one key.
template <class Record>
Record ReadFrom(Record record, const std::string& name, const std::string& value) {
    Section section("Record");
    section[name] << value;
    EXPECT_TRUE(record.Read(section));
    return record;
}

/// Expects that each change alone makes another record of the default one, which comes back from
/// its keys: in the place of those of the default one, or with those appended.
template <class Record>
void ExpectEachChangeKept(std::initializer_list<void (*)(Record&)> changes, bool inPlace = false) {
    for (const auto change : changes) {
        Record changed;
        change(changed);
        EXPECT_FALSE(changed == Record()) << WrittenKeys(changed);
        Section section("Record");
        EXPECT_TRUE((inPlace ? Record() : changed).Write(section));
        EXPECT_TRUE((inPlace ? changed : Record()).Write(section));
        Record read;
        EXPECT_TRUE(read.Read(section));
        EXPECT_EQ(read, changed) << KeysOf(section);
    }
}
