// SPDX-License-Identifier: MIT
// The contour editor as a program of its own.
#include <marlin/base/error_string.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/window_system.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

#include <CLI/CLI.hpp>

namespace {

enum EXIT : int { DONE = 0, FAILED = 1, UNUSABLE = 2 };

constexpr const char* programName = "marlin-contour-editor";

void Say(const std::string& message) {
    static_cast<void>(std::fprintf(stderr, "%s: %s\n", programName, message.c_str()));
}

int Ask(const std::string& text, UINT type) {
    return PLATFORM::WindowSystem::Current().ShowMessage(
        nullptr, {CString(text), CString("Contours"), type});
}

std::string CauseOf(const ErrorString& error) {
    return error.Cause().empty() ? error.Text() : error.Cause();
}

// The name as given where there is such a file, else with the extension that the editor gives it.
std::string FileFor(const std::string& name) {
    std::error_code error;
    const bool isComplete = name.empty() || std::filesystem::exists(name, error) ||
                            std::filesystem::path(name).has_extension();
    return isComplete ? name : name + ".cdf";
}

// Asks for another name for a list that could not be saved; empty to go on editing it.
std::string AskForName(const std::string& path) {
    CFileDialog dialog(false, "cdf", path.c_str(), OFN_OVERWRITEPROMPT,
                       "Contour Definition Files (*.cdf)|*.cdf||", nullptr);
    return dialog.DoModal() == IDOK ? std::string(dialog.GetPathName()) : std::string();
}

// A list on its way to the disk: edited until it is saved, or the user wants it no more.
class Editing {
public:
    Editing(std::string path, ContourDefinitionList list)
        : m_Path(std::move(path)), m_List(std::move(list)) {}

    int Run() {
        while (true) {
            const ContourEditResult result = EditOnce();
            if (result.Outcome != ContourEditResult::NOT_SAVED) {
                return DONE;
            }
            Say("not saved: " + result.Cause);
            if (m_List.NumContours() == 0) {
                Ask("The list was not saved: " + result.Cause, MB_OK | MB_ICONEXCLAMATION);
                return FAILED;
            }
            const int answer =
                Ask("The list was not saved: " + result.Cause + "\nSave it under another name?",
                    MB_YESNOCANCEL | MB_ICONQUESTION);
            if (answer == IDNO) {
                return FAILED;
            }
            if (answer == IDYES && SaveElsewhere()) {
                return DONE;
            }
        }
    }

private:
    ContourEditResult EditOnce() {
        CContourEditor editor;
        editor.FileName(CString(m_Path));
        editor.AskBeforeLoss(true);
        editor.SetDefinitions(m_List, m_IsSaved);
        editor.DoModal();
        m_List = editor.Definitions();
        m_IsSaved = false;
        return editor.Result();
    }

    bool SaveElsewhere() {
        const std::string path = AskForName(m_Path);
        const bool isSaved = !path.empty() && m_List.Save(path.c_str());
        if (!isSaved && !path.empty()) {
            Ask("Not saved: " + CauseOf(ErrorString::LastError()), MB_OK | MB_ICONERROR);
        }
        return isSaved;
    }

    std::string m_Path;
    ContourDefinitionList m_List;
    bool m_IsSaved = true;
};

int Edit(const std::string& path) {
    ContourDefinitionList list;
    std::error_code error;
    if (!path.empty() && std::filesystem::exists(path, error)) {
        // The list would replace a file that it was not read from whole.
        const ErrorString read = list.Open(path);
        if (!read.Empty()) {
            Say(CauseOf(read));
            Ask(CauseOf(read), MB_OK | MB_ICONERROR);
            return FAILED;
        }
    }
    return Editing(path, std::move(list)).Run();
}

// Where the sizes of windows are kept; empty for nowhere.
std::string SizesFile() {
    const char* const state = std::getenv("XDG_STATE_HOME");
    const char* const home = std::getenv("HOME");
    std::filesystem::path folder = state && *state ? state : "";
    if (folder.empty() && home && *home) {
        folder = std::filesystem::path(home) / ".local/state";
    }
    std::error_code failed;
    std::filesystem::create_directories(folder / "marlin", failed);
    return folder.empty() || failed ? std::string() : (folder / "marlin/windows.ini").string();
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
        Say("no display to show windows on (" + CauseOf(ErrorString::LastError()) + ")");
        return UNUSABLE;
    }
    if (auto* const windows =
            dynamic_cast<PLATFORM::QtWindowSystem*>(&PLATFORM::WindowSystem::Current())) {
        windows->KeepSizesIn(SizesFile());
    }
    return Edit(FileFor(path));
}
