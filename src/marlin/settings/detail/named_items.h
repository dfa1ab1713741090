// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/hashed_string.h>

#include <algorithm>

/// Look-ups by name in a list of keys or of sections. Of several items of one name the first in
/// the list is found.
namespace MARLINSUITE::detail {

template <class List>
[[nodiscard]] auto FindNamed(List& items, std::string_view name) noexcept {
    const unsigned int hash = HashedString::ComputeHashValue(name);
    const auto isNamed = [=](const auto& item) { return item.GetName().Is(name, hash); };
    if constexpr (requires { items.FindIf(isNamed); }) {
        return items.FindIf(isNamed);
    } else {
        return std::ranges::find_if(items, isNamed);
    }
}

template <class List>
[[nodiscard]] bool HasNamed(const List& items, std::string_view name) noexcept {
    return FindNamed(items, name) != items.end();
}

template <class List, class Item>
[[nodiscard]] const Item& NamedOr(const List& items, std::string_view name,
                                  const Item& missing) noexcept {
    const auto found = FindNamed(items, name);
    return found != items.end() ? *found : missing;
}

/// Appends an item of that name when there is none.
template <class List>
[[nodiscard]] auto& NamedOrNew(List& items, std::string_view name) {
    const auto found = FindNamed(items, name);
    return found != items.end() ? *found : items.emplace_back(HashedString(name));
}

/// False when there is none.
template <class List>
bool RemoveNamed(List& items, std::string_view name) {
    const auto found = FindNamed(items, name);
    if (found == items.end()) {
        return false;
    }
    items.erase(found);
    return true;
}

}  // namespace MARLINSUITE::detail
