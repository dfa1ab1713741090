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
    SAVE_CHANGED_LIST = 9090,  ///< question before a changed list is closed
    REPLACE_CHANGED_FILE =
        9091,  ///< question before a file is replaced that another program has changed
    REPLACE_UNREAD_FILE = 9092,  ///< question before a file is replaced that was not opened
    GENERATE_MANY =
        9093,  ///< question before a great many levels are generated; their number follows
    NO_COLOR_IN_CLIPBOARD =
        9094,  ///< begins the report of a text that is no color; the forms of colors follow
    NO_COLOR_TABLE = 9095,        ///< a file has no color table
    EMPTY_LIST_NOT_SAVED = 9096,  ///< why an empty list is not saved
    NO_FILE_CHOSEN = 9097,        ///< why a list without a file is not saved
    MENU_ADD = 9098,              ///< item of the menu: add
    MENU_EDIT = 9099,             ///< item of the menu: edit
    MENU_EDIT_LEVEL = 9100,       ///< item of the menu: edit level
    MENU_REMOVE = 9101,           ///< item of the menu: remove
    MENU_DUPLICATE = 9102,        ///< item of the menu: duplicate
    MENU_INSERT_BETWEEN = 9103,   ///< item of the menu: insert between
    MENU_COPY_COLOR = 9104,       ///< item of the menu: copy color
    MENU_PASTE_COLOR = 9105,      ///< item of the menu: paste color
    MENU_RECOLOR = 9106,          ///< item of the menu: recolor
    MENU_SELECT_ALL = 9107,       ///< item of the menu: select all
    MENU_UNDO = 9108,             ///< item of the menu: undo
    MENU_REDO = 9109,             ///< item of the menu: redo
    MENU_RANGE = 9110,            ///< item of the menu: range
    MENU_COLOR_TABLE = 9111,      ///< item of the menu: color table
};

/// Hands the texts over to the platform's string table and makes them the current ones.
void LoadTexts() noexcept;

/// The text of that number in the current string table; an empty one when it has none. The
/// start-up loads the texts before any other static constructor runs.
[[nodiscard]] std::string_view Message(MESSAGE message) noexcept;

}  // namespace MARLINSUITE
