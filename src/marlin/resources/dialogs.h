// SPDX-License-Identifier: MIT
#pragma once

namespace MARLINSUITE {

/// The numbers of the dialog templates.
enum DIALOG : unsigned int {
    DIALOG_GENERATE_CONTOURS = 9010,
    DIALOG_CONTOURS = 9011,
    DIALOG_CONTOUR_PROPERTIES = 9012,
};

/// The numbers of the controls in them.
enum CONTROL_ID : int {
    CONTROL_LINE_STYLE = 9022,
    CONTROL_EDIT = 9023,
    CONTROL_LOWEST_LEVEL = 9024,
    CONTROL_HIGHEST_LEVEL = 9025,
    CONTROL_ADD = 9026,
    CONTROL_INTERVAL = 9027,
    CONTROL_COLOR_TABLE = 9028,
    CONTROL_CONTOUR_LIST = 9029,
    CONTROL_REMOVE = 9030,
    CONTROL_RANGE = 9031,
    CONTROL_SHOW_LABELS = 9032,
    CONTROL_COLOR = 9033,
    CONTROL_LINE_WIDTH = 9034,
    CONTROL_LINE_WIDTH_SPIN = 9035,
    CONTROL_LEVEL = 9036,
};

/// Hands the dialog templates over to the platform.
void LoadDialogs() noexcept;

}  // namespace MARLINSUITE
