// SPDX-License-Identifier: MIT
// The contour editor as a program of its own.
#include <marlin/base/error_string.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/window_system.h>
#include <marlin/settings/ini_file.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include <CLI/CLI.hpp>

namespace {

enum EXIT : int { DONE = 0, FAILED = 1, UNUSABLE = 2 };

constexpr const char* programName = "marlin-contour-editor";

// On standard error, and for who started the program from a desktop in a box.
int Refuse(const std::string& message) {
    static_cast<void>(std::fprintf(stderr, "%s: %s\n", programName, message.c_str()));
    PLATFORM::WindowSystem::Current().ShowMessage(
        nullptr, {CString(message), CString("Contours"), MB_OK | MB_ICONERROR});
    return FAILED;
}

std::string CauseOf(const ErrorString& error) {
    return error.Cause().empty() ? error.Text() : error.Cause();
}

// A file that cannot be read would be overwritten by the list that the editor shows in its place.
// Empty where nothing is lost.
std::string ReasonNotToEdit(const std::string& path) {
    std::error_code error;
    ContourDefinitionList list;
    if (path.empty() || !std::filesystem::exists(path, error) || list.Load(path.c_str())) {
        return {};
    }
    IniFile file;
    const ErrorString failure = file.Open(path);
    return failure.Empty() ? path + ": no section [Contour(0)]: not a contour definition file"
                           : CauseOf(failure);
}

std::string ReasonNotSaved(const CContourEditor& editor) {
    return editor.Definitions().NumContours() == 0 ? "an empty list makes no file"
                                                   : CauseOf(ErrorString::LastError());
}

int Edit(const std::string& path) {
    if (const std::string reason = ReasonNotToEdit(path); !reason.empty()) {
        return Refuse(reason);
    }
    CContourEditor editor;
    editor.FileName(CString(path));
    if (editor.DoModal() == IDOK && editor.HasSaveFailed()) {
        return Refuse("not saved: " + ReasonNotSaved(editor));
    }
    return DONE;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Edits the contour definitions of charts and plots in a window.", programName);
    app.set_version_flag("--version", std::string(programName) + " " + MARLIN_VERSION);
    std::string path;
    app.add_option("FILE", path, "Contour definition file (.cdf); made anew when it is missing")
        ->type_name("");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? DONE : UNUSABLE;
    }
    if (!MARLINSUITE::UseQtWindows()) {
        static_cast<void>(std::fprintf(stderr, "%s: no display to show windows on\n", programName));
        return UNUSABLE;
    }
    return Edit(path);
}
