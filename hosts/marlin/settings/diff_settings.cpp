// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/ignoring_case.h"
#include "input/settings_source.h"
#include "output/json.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace HOST {

namespace {

// One difference. A null pointer is for what one side lacks; a difference without keys is that of a
// whole section.
struct Difference {
    const Section* InSection = nullptr;
    const Section* OldSection = nullptr;
    const Section* NewSection = nullptr;
    const SectionKey* OldKey = nullptr;
    const SectionKey* NewKey = nullptr;

    [[nodiscard]] bool IsOfKey() const noexcept { return OldKey || NewKey; }
};
using Differences = std::vector<Difference>;

// The keys of one name in their order; the first `NumTaken` of them have been compared.
struct NamedKeys {
    std::vector<const SectionKey*> Keys;
    std::size_t NumTaken = 0;

    const SectionKey* Take() { return NumTaken < Keys.size() ? Keys[NumTaken++] : nullptr; }
};

ByName<NamedKeys> KeysByName(const Section& section) {
    ByName<NamedKeys> keys;
    for (const SectionKey& key : section.Keys()) {
        if (key.IsValid()) {
            keys[*key.GetName()].Keys.push_back(&key);
        }
    }
    return keys;
}

// The n-th key of a name is compared with the other side's n-th.
void CompareKeys(const Section& a, const Section& b, Differences& differences) {
    auto others = KeysByName(b);
    for (const SectionKey& key : a.Keys()) {
        if (!key.IsValid()) {
            continue;
        }
        const SectionKey* const other = others[*key.GetName()].Take();
        if (!other || other->GetValue() != key.GetValue()) {
            differences.push_back({&a, &a, &b, &key, other});
        }
    }
    // Those that are left, in the order of the file.
    ByName<std::size_t> numSeen;
    for (const SectionKey& key : b.Keys()) {
        const std::string& name = *key.GetName();
        if (key.IsValid() && numSeen[name]++ >= others[name].NumTaken) {
            differences.push_back({&a, &a, &b, nullptr, &key});
        }
    }
}

Differences Compare(const IniFile& a, const IniFile& b) {
    Differences differences;
    ByName<const Section*> others;
    for (const Section& section : b.Sections()) {
        others.emplace(*section.GetName(), &section);
    }
    for (const Section& section : a.Sections()) {
        const auto other = others.find(*section.GetName());
        if (other == others.end()) {
            differences.push_back({&section, &section, nullptr, nullptr, nullptr});
        } else {
            CompareKeys(section, *other->second, differences);
            others.erase(other);
        }
    }
    for (const Section& section : b.Sections()) {
        if (others.contains(*section.GetName())) {
            differences.push_back({&section, nullptr, &section, nullptr, nullptr});
        }
    }
    return differences;
}

std::string KeyLine(char sign, const SectionKey* key) {
    return key ? std::string{sign, ' '} + Shown(*key->GetName()) + " = " + Shown(key->GetValue()) +
                     "\n"
               : std::string();
}

void AppendText(const Differences& differences, std::string& text) {
    const Section* current = nullptr;
    for (const Difference& difference : differences) {
        const std::string name = "[" + Shown(*difference.InSection->GetName()) + "]\n";
        if (!difference.IsOfKey()) {
            text += (difference.OldSection ? "- " : "+ ") + name;
            continue;
        }
        text += difference.InSection == current ? "" : "  " + name;
        current = difference.InSection;
        text += KeyLine('-', difference.OldKey) + KeyLine('+', difference.NewKey);
    }
}

std::string_view ChangeOf(const Difference& difference) {
    const bool isOfKey = difference.IsOfKey();
    if (isOfKey ? !difference.OldKey : !difference.OldSection) {
        return "added";
    }
    return (isOfKey ? !difference.NewKey : !difference.NewSection) ? "removed" : "changed";
}

Json JsonOf(const Difference& difference) {
    Json json = {{"change", ChangeOf(difference)},
                 {"section", AsUtf8(*difference.InSection->GetName())}};
    if (const SectionKey* const key = difference.OldKey ? difference.OldKey : difference.NewKey) {
        json["key"] = AsUtf8(*key->GetName());
    }
    if (difference.OldKey) {
        json["old"] = AsUtf8(difference.OldKey->GetValue());
    }
    if (difference.NewKey) {
        json["new"] = AsUtf8(difference.NewKey->GetValue());
    }
    return json;
}

struct DiffSettings {
    std::string Old;
    std::string New;
    bool IsJson = false;

    void Declare(Options& options) {
        options.Word("A", Old, "Settings file");
        options.Word("B", New, "Settings file");
        options.Json(IsJson);
    }

    int Run(Output& output) const {
        SettingsSource oldFile;
        SettingsSource newFile;
        Require(oldFile.OpenWithSections(Old));
        Require(newFile.OpenWithSections(New));
        const Differences differences = Compare(oldFile.File(), newFile.File());
        if (IsJson) {
            Json json = Json::array();
            std::ranges::transform(differences, std::back_inserter(json), JsonOf);
            AppendJson(json, output);
        } else {
            AppendText(differences, output.Text);
        }
        return differences.empty() ? DONE : FOUND;
    }
};

}  // namespace

void AddDiffSettings(Family& settings) {
    settings.Add<DiffSettings>("diff", "Compare two files key by key");
}

}  // namespace HOST
