// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/resources/dialogs.h>

#include <array>

namespace {

using namespace MARLINSUITE;
using enum PLATFORM::CONTROL;
using PLATFORM::ControlTemplate;
using PLATFORM::DialogTemplate;

constexpr int noId = -1;

constexpr std::array<ControlTemplate, 8> generation = {{
    {noId, LABEL, "&Highest level:", 7, 9, 60, 8},
    {CONTROL_HIGHEST_LEVEL, EDIT, "", 71, 7, 70, 14},
    {noId, LABEL, "&Lowers level:", 7, 29, 60, 8},
    {CONTROL_LOWEST_LEVEL, EDIT, "", 71, 27, 70, 14},
    {noId, LABEL, "&Interval:", 7, 49, 60, 8},
    {CONTROL_INTERVAL, EDIT, "", 71, 47, 70, 14},
    {IDOK, DEFAULT_BUTTON, "OK", 37, 84, 50, 14},
    {IDCANCEL, PUSH_BUTTON, "Cancel", 91, 84, 50, 14},
}};

constexpr std::array<ControlTemplate, 9> editor = {{
    {CONTROL_CONTOUR_LIST, REPORT_LIST, "", 6, 7, 153, 161, "Contours"},
    {CONTROL_ADD, PUSH_BUTTON, "&Add", 173, 7, 57, 14},
    {CONTROL_EDIT, PUSH_BUTTON, "&Edit", 173, 24, 57, 14, {}, {}, true},
    {CONTROL_REMOVE, PUSH_BUTTON, "&Remove", 173, 41, 57, 14, {}, {}, true},
    {noId, LABEL, "Generate from:", 173, 67, 57, 8},
    {CONTROL_RANGE, PUSH_BUTTON, "Ra&nge", 173, 78, 57, 14, "Generate from range"},
    {CONTROL_COLOR_TABLE, PUSH_BUTTON, "Color &Table", 173, 95, 57, 14,
     "Generate from color table"},
    {IDOK, DEFAULT_BUTTON, "OK", 173, 137, 57, 14},
    {IDCANCEL, PUSH_BUTTON, "Cancel", 173, 154, 57, 14},
}};

constexpr std::array<std::string_view, 3> lineStyles = {"CONTINUOUS", "DASHED", "DOTTED"};

constexpr std::array<ControlTemplate, 12> properties = {{
    {noId, LABEL, "&Level:", 7, 9, 60, 8},
    {CONTROL_LEVEL, EDIT, "", 71, 7, 100, 14},
    {noId, LABEL, "&Color:", 7, 28, 60, 8},
    {CONTROL_COLOR, OWNER_BUTTON, "Click to Change", 71, 25, 100, 14, "Color: click to change"},
    {noId, LABEL, "Line &style:", 7, 46, 60, 8},
    {CONTROL_LINE_STYLE, DROP_DOWN_LIST, "", 71, 44, 100, 14, {}, lineStyles},
    {noId, LABEL, "Line &width:", 7, 64, 60, 8},
    {CONTROL_LINE_WIDTH, EDIT, "", 71, 62, 89, 14},
    {CONTROL_LINE_WIDTH_SPIN, SPIN, "", 160, 62, 11, 14, "Line width"},
    {CONTROL_SHOW_LABELS, CHECK_BOX, "Show la&bels:", 7, 82, 75, 10},
    {IDOK, DEFAULT_BUTTON, "OK", 67, 103, 50, 14},
    {IDCANCEL, PUSH_BUTTON, "Cancel", 121, 103, 50, 14},
}};

constexpr std::string_view font = "MS Shell Dlg";

constexpr std::array<DialogTemplate, 3> templates = {{
    {DIALOG_GENERATE_CONTOURS, "Generate Contours", 148, 105, font, 8, generation},
    {DIALOG_CONTOURS, "Contours", 237, 174, font, 8, editor},
    {DIALOG_CONTOUR_PROPERTIES, "Contour Properties", 178, 124, font, 8, properties},
}};

}  // namespace

void MARLINSUITE::LoadDialogs() noexcept {
    PLATFORM::SetDialogTemplates(templates);
}
