// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/window_messages.h>
#include <marlin/qt/detail/dialog_window.h>
#include <marlin/qt/detail/list_widget.h>

#include <QKeyEvent>

namespace PLATFORM {

int DialogWindow::Run() {
    for (QObject* const child : children()) {
        if (auto* const list = dynamic_cast<ListWidget*>(child)) {
            list->FitColumns();
        }
    }
    if (!m_HasEnded) {
        exec();
    }
    End(IDCANCEL);  // the host's application has ended
    return m_Result;
}

void DialogWindow::End(int result) {
    if (!m_HasEnded) {
        m_HasEnded = true;
        m_Result = result;
        done(result);
    }
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        QtWindowSystem::Events::Help(m_Handle);
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace PLATFORM
