// SPDX-License-Identifier: MIT
#pragma once

namespace MARLINSUITE {

/// The numbers of the dialog templates.
enum DIALOG : unsigned int {
    DIALOG_GENERATE_CONTOURS = 9010,   ///< levels from a range
    DIALOG_CONTOURS = 9011,            ///< the list of contours
    DIALOG_CONTOUR_PROPERTIES = 9012,  ///< one contour
};

/// The numbers of the controls in them.
enum CONTROL_ID : int {
    CONTROL_LINE_STYLE = 9022,       ///< drop-down list of a contour
    CONTROL_EDIT = 9023,             ///< button beside the list
    CONTROL_LOWEST_LEVEL = 9024,     ///< edit of the range
    CONTROL_HIGHEST_LEVEL = 9025,    ///< edit of the range
    CONTROL_ADD = 9026,              ///< button beside the list
    CONTROL_INTERVAL = 9027,         ///< edit of the range
    CONTROL_COLOR_TABLE = 9028,      ///< button that makes levels of a color table
    CONTROL_CONTOUR_LIST = 9029,     ///< the list itself
    CONTROL_REMOVE = 9030,           ///< button beside the list
    CONTROL_RANGE = 9031,            ///< button that makes levels of a range
    CONTROL_SHOW_LABELS = 9032,      ///< check box of a contour
    CONTROL_COLOR = 9033,            ///< color button of a contour
    CONTROL_LINE_WIDTH = 9034,       ///< edit of a contour
    CONTROL_LINE_WIDTH_SPIN = 9035,  ///< arrows at that edit
    CONTROL_LEVEL = 9036,            ///< edit of a contour
};

/// The numbers of the commands of the contour editor's menu that are not those of its buttons.
enum COMMAND_ID : int {
    COMMAND_UNDO = 9041,
    COMMAND_REDO = 9042,
    COMMAND_EDIT_LEVEL = 9043,
    COMMAND_DUPLICATE = 9044,
    COMMAND_INSERT_BETWEEN = 9045,
    COMMAND_COPY_COLOR = 9046,
    COMMAND_PASTE_COLOR = 9047,
    COMMAND_RECOLOR = 9048,
    COMMAND_SELECT_ALL = 9049,
};

/// Hands the dialog templates over to the platform.
void LoadDialogs() noexcept;

}  // namespace MARLINSUITE
