// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/settings_check.h>
#include <marlin/base/files/detail/settings_writer.h>
#include <marlin/base/files/settings_grammar.h>
#include <marlin/settings/detail/save_check.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace MARLINSUITE::detail {

namespace {

// Names that hosts gave by `SetName` are not looked at before.
const Section* SecondOfAName(const std::deque<Section>& sections) {
    std::vector<const Section*> sorted;
    sorted.reserve(sections.size());
    for (const Section& section : sections) {
        sorted.push_back(&section);
    }
    std::ranges::stable_sort(sorted, [](const Section* a, const Section* b) { return *a < *b; });
    const auto found = std::ranges::adjacent_find(
        sorted, [](const Section* a, const Section* b) { return *a == *b; });
    return found == sorted.end() ? nullptr : *std::next(found);
}

}  // namespace

std::string ReasonAgainstSaving(const std::deque<Section>& sections) {
    SettingsCheck check;
    for (const Section& section : sections) {
        check.BeginSection(*section.GetName(), section.GetComments());
        for (const SectionKey& key : section.Keys()) {
            check.AddKey(*key.GetName(), key.GetValue(), key.GetComments());
        }
    }
    const Section* const second = check.Reason().empty() ? SecondOfAName(sections) : nullptr;
    return second ? "section \"" + *second->GetName() + "\": a second one of its name"
                  : check.Reason();
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
