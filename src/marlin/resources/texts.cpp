// SPDX-License-Identifier: MIT
#include <marlin/platform/text/string_table.h>
#include <marlin/resources/texts.h>

#include <array>

namespace {

// Spelt as the suite's other programs and their users know them, mistakes included.
constexpr PLATFORM::StringResource Entry(MARLINSUITE::MESSAGE message, std::string_view text) {
    return {static_cast<unsigned int>(message), text};
}

using enum MARLINSUITE::MESSAGE;

constexpr std::array texts = {
    Entry(COLUMN_ANNOTATION, "Annotation"),
    Entry(COLUMN_WIDTH, "Width"),
    Entry(COLUMN_TYPE, "Type"),
    Entry(LINE_TYPES, "Continous,Dashed,Dot,Dash Dot"),
    Entry(ERROR_OPENING_FILE, "Error opening \""),
    Entry(INVALID_CHECKSUM, " The file has an invalid checksum"),
    Entry(CONTOUR_NOT_ADDED, "The contour definition is already in the list, it was not added."),
    Entry(ERROR_CAPTION, "Error"),
    Entry(GENERATION_FAILED, "Failed to generate contours."),
    Entry(COLOR_TABLE_FILES, "Color Table Files (*.col)"),
    Entry(CONTOUR_NOT_MODIFIED,
          "Failed to implement modifications.\nReason:\n"
          "\tThe depth was modfied to a value\n\tthat is already in the list!"),
    Entry(COLUMN_LEVEL, "Color Level"),
    Entry(SAVE_CHANGES, "Save changes?"),
    Entry(CONTOUR_FILES, "Contour Definition Files (*.cdf)"),
    Entry(ERROR_OPENING_SETTINGS, "Error opening \""),
    Entry(FOR_READING, "\" for reading!"),
    Entry(DUPLICATE_SECTION, "Error! Duplicate section"),
    Entry(SECTION_FOUND, " found!"),
    Entry(INVALID_SECTION, "Invalid section definition on line "),
    Entry(SAVE_CHANGED_LIST, "The list was changed. Save it?"),
    Entry(REPLACE_CHANGED_FILE,
          "Another program has changed the file since it was opened. Replace it?"),
    Entry(REPLACE_UNREAD_FILE,
          "There is such a file already, and it is not the one that was opened. Replace it?"),
    Entry(GENERATE_MANY, "So many levels would be generated: "),
    Entry(NO_COLOR_IN_CLIPBOARD, "The clipboard holds no color. Colors are written as "),
    Entry(NO_COLOR_TABLE, "The file holds no color table."),
    Entry(EMPTY_LIST_NOT_SAVED, "an empty list makes no file"),
    Entry(NO_FILE_CHOSEN, "no file was chosen"),
    Entry(MENU_ADD, "&Add...\tIns"),
    Entry(MENU_EDIT, "&Edit...\tEnter"),
    Entry(MENU_EDIT_LEVEL, "Edit &level\tF2"),
    Entry(MENU_REMOVE, "&Remove\tDel"),
    Entry(MENU_DUPLICATE, "&Duplicate\tCtrl+D"),
    Entry(MENU_INSERT_BETWEEN, "&Insert between\tCtrl+I"),
    Entry(MENU_COPY_COLOR, "&Copy color\tCtrl+C"),
    Entry(MENU_PASTE_COLOR, "&Paste color\tCtrl+V"),
    Entry(MENU_RECOLOR, "Recolor from color &table..."),
    Entry(MENU_SELECT_ALL, "&Select all\tCtrl+A"),
    Entry(MENU_UNDO, "&Undo\tCtrl+Z"),
    Entry(MENU_REDO, "Red&o\tCtrl+Shift+Z"),
    Entry(MENU_RANGE, "Generate from ra&nge..."),
    Entry(MENU_COLOR_TABLE, "&Generate from color table..."),
};

}  // namespace

namespace MARLINSUITE {

void LoadTexts() noexcept {
    PLATFORM::StringTable::SetOwn(texts);
}

std::string_view Message(MESSAGE message) noexcept {
    return PLATFORM::StringTable::Text(static_cast<unsigned int>(message));
}

}  // namespace MARLINSUITE
