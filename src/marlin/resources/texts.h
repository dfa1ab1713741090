// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace MARLINSUITE {

/// The numbers of the string table's texts.
enum class MESSAGE : unsigned int {
    COLUMN_ANNOTATION = 9064,       ///< heading of the column of labels
    COLUMN_WIDTH = 9065,            ///< heading of the column of line widths
    COLUMN_TYPE = 9066,             ///< heading of the column of line types
    LINE_TYPES = 9067,              ///< names of the line types, commas between them
    ERROR_OPENING_FILE = 9070,      ///< begins the report of a file that does not open
    INVALID_CHECKSUM = 9071,        ///< ends the report of a file with a wrong checksum
    CONTOUR_NOT_ADDED = 9072,       ///< a level is in the list already
    ERROR_CAPTION = 9073,           ///< title of message boxes about errors
    GENERATION_FAILED = 9074,       ///< no contours could be made
    COLOR_TABLE_FILES = 9075,       ///< file kind "col" in file dialogs
    CONTOUR_NOT_MODIFIED = 9076,    ///< a changed level is in the list already
    COLUMN_LEVEL = 9077,            ///< heading of the column of levels, shown in their colors
    SAVE_CHANGES = 9078,            ///< question before a changed list is left
    CONTOUR_FILES = 9079,           ///< file kind "cdf" in file dialogs
    ERROR_OPENING_SETTINGS = 9080,  ///< begins the report of settings that do not open
    FOR_READING = 9081,             ///< ends that report
    DUPLICATE_SECTION = 9082,  ///< begins the report of a section found twice; its name follows
    SECTION_FOUND = 9083,      ///< ends that report
    INVALID_SECTION = 9086,    ///< begins the report of a faulty header; the line number follows
};

/// Hands the texts over to the platform's string table and makes them the current ones.
void LoadTexts() noexcept;

/// The text of that number in the current string table; an empty one when it has none. The
/// start-up loads the texts before any other static constructor runs.
[[nodiscard]] std::string_view Message(MESSAGE message) noexcept;

}  // namespace MARLINSUITE
