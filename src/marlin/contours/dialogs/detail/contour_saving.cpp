// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/detail/contour_boxes.h>
#include <marlin/contours/dialogs/detail/contour_saving.h>
#include <marlin/platform/windowing/c_file_dialog.h>

namespace MARLINSUITE::detail {

ContourEditResult SaveContours(const ContourDefinitionList& list, const CString& path) {
    using enum ContourEditResult::OUTCOME;
    if (list.NumContours() == 0) {
        return {NOT_SAVED, path, std::string(Message(MESSAGE::EMPTY_LIST_NOT_SAVED))};
    }
    if (list.Save(path)) {
        return {SAVED, path, {}};
    }
    const ErrorString error = ErrorString::LastError();
    return {NOT_SAVED, path, error.Cause().empty() ? error.Text() : error.Cause()};
}

ContourEditResult SaveContoursAsChosen(CWnd& editor, const ContourDefinitionList& list) {
    CString path;
    constexpr unsigned long flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
    if (!AskForFile(editor, "cdf", MESSAGE::CONTOUR_FILES, flags, path)) {
        return {ContourEditResult::NOT_SAVED, {}, std::string(Message(MESSAGE::NO_FILE_CHOSEN))};
    }
    return SaveContours(list, path);
}

}  // namespace MARLINSUITE::detail
