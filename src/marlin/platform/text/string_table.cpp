// SPDX-License-Identifier: MIT
#include <marlin/platform/text/string_table.h>

#include <algorithm>

namespace PLATFORM {

namespace {

constinit std::span<const StringResource> replacement;

}  // namespace

void StringTable::Set(std::span<const StringResource> table) noexcept {
    replacement = table;
}

std::string_view StringTable::Text(unsigned int id) noexcept {
    const auto& current = replacement.empty() ? DefaultStringTable : replacement;
    const auto found = std::ranges::find(current, id, &StringResource::Id);
    return found == current.end() ? std::string_view() : found->Text;
}

}  // namespace PLATFORM
