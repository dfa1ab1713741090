// SPDX-License-Identifier: MIT
#include "families.h"
#include "input/files.h"
#include <marlin/base/error_string.h>
#include <marlin/platform/kernel/process.h>

#include <filesystem>

namespace HOST {

namespace {

constexpr const char* editorName = "marlin-contour-editor";

// Beside this program, as it is installed, or else the first one on the search path.
std::string EditorPath() {
    const std::string beside = std::filesystem::path(PLATFORM::ProgramFolder()) / editorName;
    return PLATFORM::IsProgram(beside) ? beside : editorName;
}

struct EditContours {
    std::string File;

    void Declare(Options& options) { options.Word("FILE", File, "Contour definition file"); }

    // This process becomes the editor, so that its exit code and its signals are the editor's.
    int Run(Output& /*output*/) {
        if (IsStandard(File)) {
            Fail("-: a window edits a file, not standard input");
        }
        const std::string program = EditorPath();
        Fail(MARLINSUITE::SystemReason(program, PLATFORM::RunInstead(program, {"--", File})));
    }
};

}  // namespace

void AddEditContours(Family& contours) {
    contours.Add<EditContours>("edit", "Edit a file in a window");
}

}  // namespace HOST
