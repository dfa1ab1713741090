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
