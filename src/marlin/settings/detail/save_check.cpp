// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/settings_writer.h>
#include <marlin/base/files/settings_grammar.h>
#include <marlin/settings/detail/save_check.h>

#include <string_view>

namespace MARLINSUITE::detail {

namespace {

bool HasLineFeed(std::string_view text) {
    return text.find('\n') != std::string_view::npos;
}

const char* ReasonAgainst(const Section& section) {
    const std::string& name = *section.GetName();
    return name.empty()                          ? "no name"
           : HasLineFeed(name)                   ? "line end in the name"
           : name.find(']') != std::string::npos ? "\"]\" in the name"
           : HasLineFeed(section.GetComments())  ? "line end in the comment"
                                                 : nullptr;
}

// The value of a key without a name is not written.
const char* ReasonAgainst(const SectionKey& key) {
    const std::string& name = *key.GetName();
    return HasLineFeed(name)                              ? "line end in the name"
           : TrimmedSettingsText(name).starts_with('[')   ? "\"[\" begins the name"
           : name.find(';') != std::string::npos          ? "\";\" in the name"
           : name.find('=') != std::string::npos          ? "\"=\" in the name"
           : key.IsValid() && HasLineFeed(key.GetValue()) ? "line end in the value"
           : HasLineFeed(key.GetComments())               ? "line end in the comment"
                                                          : nullptr;
}

}  // namespace

std::string ReasonAgainstSaving(const std::deque<Section>& sections) {
    for (const Section& section : sections) {
        const std::string place = "section \"" + *section.GetName() + "\"";
        if (const char* const reason = ReasonAgainst(section)) {
            return place + ": " + reason;
        }
        for (const SectionKey& key : section.Keys()) {
            if (const char* const reason = ReasonAgainst(key)) {
                return place + ", key \"" + *key.GetName() + "\": " + reason;
            }
        }
    }
    return {};
}

// Written and read as its line, since nothing else can say it as surely.
bool LosesSomething(const SectionKey& key) {
    std::string text;
    SettingsWriter writer(text);
    writer.BeginSection("", {}, key.GetName()->size(), key.GetValue().size());
    text.clear();
    writer.AddKey(*key.GetName(), key.GetValue(), key.GetComments());
    SettingsGrammar grammar;
    static_cast<void>(grammar.Take("[S]"));  // in a section
    const SettingsLine line = grammar.Take(text);
    return line.Name != *key.GetName() || line.Value != key.GetValue() ||
           line.Comments != key.GetComments();
}

}  // namespace MARLINSUITE::detail
