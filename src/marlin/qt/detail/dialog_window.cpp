// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/dialog_window.h>
#include <marlin/qt/detail/list_widget.h>

#include <QKeyEvent>

namespace PLATFORM::detail {

int DialogWindow::Run() {
    // By now the dialog has filled its lists.
    for (QObject* const child : children()) {
        if (auto* const list = dynamic_cast<ListWidget*>(child)) {
            list->FitColumns();
        }
    }
    if (!m_HasEnded) {
        exec();
    }
    // The host's application may end before the dialog does.
    End(IDCANCEL);
    return m_Result;
}

void DialogWindow::End(int result) {
    // The first result counts.
    if (!m_HasEnded) {
        m_HasEnded = true;
        m_Result = result;
        done(result);
    }
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        SendHelp(m_Handle);
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace PLATFORM::detail
