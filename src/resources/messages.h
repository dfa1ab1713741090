// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace MARLINSUITE {

/// The numbers of the string table's texts.
enum class MESSAGE : unsigned int {
    ERROR_OPENING_FILE = 9070,
    INVALID_CHECKSUM = 9071,
    ERROR_OPENING_SETTINGS = 9080,
    FOR_READING = 9081,
    DUPLICATE_SECTION = 9082,
    SECTION_FOUND = 9083,
    INVALID_SECTION = 9086,
};

/// The text of that number; an empty one when the table has none.
[[nodiscard]] std::string_view Message(MESSAGE message) noexcept;

}  // namespace MARLINSUITE
