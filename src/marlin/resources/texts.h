// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace MARLINSUITE {

/// The numbers of the string table's texts.
enum class MESSAGE : unsigned int {
    COLUMN_ANNOTATION = 9064,
    COLUMN_WIDTH = 9065,
    COLUMN_TYPE = 9066,
    LINE_TYPES = 9067,
    ERROR_OPENING_FILE = 9070,
    INVALID_CHECKSUM = 9071,
    CONTOUR_NOT_ADDED = 9072,
    ERROR_CAPTION = 9073,
    GENERATION_FAILED = 9074,
    COLOR_TABLE_FILES = 9075,
    CONTOUR_NOT_MODIFIED = 9076,
    COLUMN_LEVEL = 9077,
    SAVE_CHANGES = 9078,
    CONTOUR_FILES = 9079,
    ERROR_OPENING_SETTINGS = 9080,
    FOR_READING = 9081,
    DUPLICATE_SECTION = 9082,
    SECTION_FOUND = 9083,
    INVALID_SECTION = 9086,
};

/// Hands the texts over to the platform's string table and makes them the current ones.
void LoadTexts() noexcept;

/// The text of that number in the current string table; an empty one when it has none. The
/// start-up loads the texts before any other static constructor runs.
[[nodiscard]] std::string_view Message(MESSAGE message) noexcept;

}  // namespace MARLINSUITE
