// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/dialog_window.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/settings/ini_file.h>

#include <QKeyEvent>
#include <QScreen>

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
    SaveSize();
    // The host's application may end before the dialog does.
    End(IDCANCEL);
    return m_Result;
}

void DialogWindow::KeepSize(const std::string& path, unsigned int dialog) {
    m_SizesPath = path;
    m_SizeSection = "Dialog " + std::to_string(dialog);
    IniFile file;
    if (path.empty() || !file.Open(path).Empty() || !file.HasSection(m_SizeSection)) {
        return;
    }
    QSize kept = size();
    file[m_SizeSection]["Width"] >> kept.rwidth();
    file[m_SizeSection]["Height"] >> kept.rheight();
    resize(kept.expandedTo(minimumSizeHint()).boundedTo(screen()->availableSize()));
}

void DialogWindow::SaveSize() const {
    if (m_SizesPath.empty()) {
        return;
    }
    IniFile file;
    // What cannot be read, or written, costs the size of a window and nothing else.
    static_cast<void>(file.Open(m_SizesPath));
    file[m_SizeSection]["Width"] << size().width();
    file[m_SizeSection]["Height"] << size().height();
    static_cast<void>(file.Save(m_SizesPath));
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
