// SPDX-License-Identifier: MIT
#include <marlin/platform/text/string_table.h>

#include <algorithm>

namespace PLATFORM {

namespace {

constinit std::span<const StringResource> own;
constinit std::span<const StringResource> current;

}  // namespace

void StringTable::SetOwn(std::span<const StringResource> table) noexcept {
    own = table;
    current = table;
}

void StringTable::Set(std::span<const StringResource> table) noexcept {
    current = table.empty() ? own : table;
}

std::string_view StringTable::Text(unsigned int id) noexcept {
    const auto found = std::ranges::find(current, id, &StringResource::Id);
    return found == current.end() ? std::string_view() : found->Text;
}

}  // namespace PLATFORM
