// SPDX-License-Identifier: MIT
#include <marlin/resources/messages.h>

#include <algorithm>
#include <array>
#include <utility>

namespace MARLINSUITE {

namespace {

using Entry = std::pair<MESSAGE, std::string_view>;

constexpr std::array texts = {
    Entry{MESSAGE::ERROR_OPENING_FILE, "Error opening \""},
    Entry{MESSAGE::INVALID_CHECKSUM, " The file has an invalid checksum"},
    Entry{MESSAGE::ERROR_OPENING_SETTINGS, "Error opening \""},
    Entry{MESSAGE::FOR_READING, "\" for reading!"},
    Entry{MESSAGE::DUPLICATE_SECTION, "Error! Duplicate section"},
    Entry{MESSAGE::SECTION_FOUND, " found!"},
    Entry{MESSAGE::INVALID_SECTION, "Invalid section definition on line "},
};

}  // namespace

std::string_view Message(MESSAGE message) noexcept {
    const auto found = std::ranges::find(texts, message, &Entry::first);
    return found == texts.end() ? std::string_view() : found->second;
}

}  // namespace MARLINSUITE
