// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/section.h>

#include <string>

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
