// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/text/c_string.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// Splitting and joining of item lists, over any string type made from a view of characters.
namespace MARLINSUITE::detail {

[[nodiscard]] inline std::string_view ItemView(const std::string& item) noexcept {
    return item;
}

[[nodiscard]] inline std::string_view ItemView(const CString& item) noexcept {
    return item.View();
}

/// Appends the items of a text: one more than it holds separators, none for an empty text.
template <class String>
void SplitItems(std::string_view text, char separator, bool keepEmpty, std::vector<String>& items) {
    if (text.empty()) {
        return;
    }
    items.reserve(items.size() + 1 + static_cast<std::size_t>(std::ranges::count(text, separator)));
    for (bool more = true; more;) {
        const std::size_t end = text.find(separator);
        more = end != std::string_view::npos;
        if (keepEmpty || !text.substr(0, end).empty()) {
            items.emplace_back(text.substr(0, end));
        }
        text.remove_prefix(more ? end + 1 : text.size());
    }
}

template <class String>
[[nodiscard]] std::string JoinItems(const std::vector<String>& items, char separator) {
    std::size_t length = items.size();
    for (const String& item : items) {
        length += ItemView(item).size();
    }
    std::string text;
    text.reserve(length);
    for (const String& item : items) {
        text.append(ItemView(item)).push_back(separator);
    }
    if (!text.empty()) {
        text.pop_back();
    }
    return text;
}

}  // namespace MARLINSUITE::detail
