// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/detail/name_hash.h>
#include <marlin/settings/hashed_string.h>

#include <array>
#include <string_view>

namespace MARLINSUITE {

/// Names met before, so that keys of one name share its text. It forgets a name when another
/// falls on its place, which costs memory only.
class NamePool {
public:
    [[nodiscard]] const HashedString& Of(std::string_view text) {
        HashedString& known = m_Names[HashOfName(text) % m_Names.size()];
        if (std::string_view(*known) != text) {
            known = HashedString(text);
        }
        return known;
    }

private:
    std::array<HashedString, 512> m_Names;
};

}  // namespace MARLINSUITE
