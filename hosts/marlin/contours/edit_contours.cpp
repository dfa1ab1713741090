// SPDX-License-Identifier: MIT
#include "contours.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace HOST {

namespace {

constexpr const char* editorName = "marlin-contour-editor";

// Beside this program, as it is installed, or else the first one on the search path.
std::string EditorPath() {
    std::error_code error;
    const std::filesystem::path own = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path beside = own.parent_path() / editorName;
    return ::access(beside.c_str(), X_OK) == 0 ? beside.string() : editorName;
}

struct EditContours {
    std::string File;

    void Declare(Options& options) { options.Word("FILE", File, "Contour definition file"); }

    // This process becomes the editor, so that its exit code and its signals are the editor's.
    int Run(Output& /*output*/) {
        std::string program = EditorPath();
        std::string endOfOptions = "--";
        const std::array<char*, 4> words = {program.data(), endOfOptions.data(), File.data(),
                                            nullptr};
        ::execvp(program.c_str(), words.data());
        Fail(program + ": " + std::generic_category().message(errno));
    }
};

}  // namespace

void AddEditContours(Family& contours) {
    contours.Add<EditContours>("edit", "Edit a file in a window");
}

}  // namespace HOST
