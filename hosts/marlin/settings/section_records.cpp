// SPDX-License-Identifier: MIT
#include "section_records.h"

#include "input/ignoring_case.h"
#include "value_records.h"
#include <marlin/contours/record_kinds.h>

#include <cstddef>
#include <span>
#include <string_view>

namespace HOST {

namespace {

using MARLINSUITE::RecordField;
using MARLINSUITE::RecordFields;
using MARLINSUITE::RecordKind;

// The keys of one prefix, in their order.
struct Prefixed {
    std::string Prefix;
    Section Keys{""};
};

std::vector<Prefixed> PrefixesOf(const Section& section) {
    std::vector<Prefixed> prefixes;
    ByName<std::size_t> places;
    for (const SectionKey& key : section.Keys()) {
        const std::string& name = key.GetName();
        const auto dot = name.rfind('.');
        if (dot == std::string::npos || dot == 0) {
            continue;
        }
        const std::string_view prefix = std::string_view(name).substr(0, dot);
        const auto [place, isNew] = places.try_emplace(prefix, prefixes.size());
        if (isNew) {
            prefixes.push_back({std::string(prefix)});
        }
        prefixes[place->second].Keys.AddKey(key);
    }
    return prefixes;
}

// The keys of each kind, listed once for all sections of a file.
std::span<const RecordFields> KeysOfKinds() {
    static const std::vector<RecordFields> keys = [] {
        std::vector<RecordFields> lists;
        for (const RecordKind& kind : MARLINSUITE::RecordKinds()) {
            lists.push_back(kind.Defaults());
        }
        return lists;
    }();
    return keys;
}

// Keys whose names many things have show no record alone.
bool IsIn(const Section& section, const std::string& start, const RecordFields& keys,
          int numNeeded) {
    int numKeys = 0;
    bool isSure = false;
    for (const auto& [key, value, text] : keys) {
        if (section.HasKey(key.NameIn(start))) {
            ++numKeys;
            isSure = isSure || !key.IsCommon;
        }
    }
    return isSure && numKeys >= numNeeded;
}

void AddRecords(const Section& section, const std::string& prefix, std::vector<Record>& records) {
    const std::string start = prefix.empty() ? "" : prefix + ".";
    for (std::size_t i = 0; i < MARLINSUITE::RecordKinds().size(); ++i) {
        const RecordKind& kind = MARLINSUITE::RecordKinds()[i];
        if ((prefix.empty() || kind.TakesPrefix) &&
            IsIn(section, start, KeysOfKinds()[i], kind.NumNeeded)) {
            Record& record = records.emplace_back(Record{kind.Name, prefix, {}});
            for (const RecordField& field : kind.Read(section, prefix)) {
                Show(record, field, section[field.Key.NameIn(start)]);
            }
        }
    }
}

}  // namespace

std::vector<Record> RecordsOf(const Section& section) {
    std::vector<Record> records;
    AddRecords(section, "", records);
    for (const Prefixed& prefixed : PrefixesOf(section)) {
        AddRecords(prefixed.Keys, prefixed.Prefix, records);
    }
    AddValueRecords(section, records);
    return records;
}

}  // namespace HOST
