// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/qt/detail/events.h>

#include <QDialog>

namespace PLATFORM {

/// The window of a dialog. Escape and its frame ask the dialog to close, F1 asks it for help.
class DialogWindow final : public QDialog {
public:
    explicit DialogWindow(HWND handle) : m_Handle(handle) {}

    /// Serves the user until `End`; what that was given.
    int Run();
    void End(int result);

    void reject() override { QtWindowSystem::Events::Close(m_Handle); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    HWND m_Handle;
    bool m_HasEnded = false;
    int m_Result = 0;
};

}  // namespace PLATFORM
