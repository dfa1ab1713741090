// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/section.h>

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
