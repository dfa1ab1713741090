// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/user_events.h>

#include <QDialog>
#include <string>

namespace PLATFORM::detail {

/// The window of a dialog. Escape and the frame ask the dialog to close, F1 asks it for help.
class DialogWindow final : public QDialog {
public:
    explicit DialogWindow(HWND handle) : m_Handle(handle) {}

    /// Serves the user until `End` and returns the result given there, which may be before.
    int Run();
    void End(int result);
    /// Takes the size that this dialog had before, and keeps it in a settings file when it ends;
    /// an empty path keeps none.
    void KeepSize(const std::string& path, unsigned int dialog);

    /// Qt calls this for Escape and for the frame.
    void reject() override { SendClose(m_Handle); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void SaveSize() const;

    HWND m_Handle;
    bool m_HasEnded = false;
    int m_Result = 0;
    std::string m_SizesPath;
    std::string m_SizeSection;
};

}  // namespace PLATFORM::detail
