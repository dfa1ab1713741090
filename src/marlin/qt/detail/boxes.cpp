// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/boxes.h>
#include <marlin/qt/detail/qt_text.h>

#include <QColorDialog>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>

namespace PLATFORM::detail {

namespace {

QMessageBox::Icon IconOf(UINT type) noexcept {
    switch (type & 0xF0U) {
        case MB_ICONERROR:
            return QMessageBox::Critical;
        case MB_ICONQUESTION:
            return QMessageBox::Question;
        case MB_ICONEXCLAMATION:
            return QMessageBox::Warning;
        default:
            return QMessageBox::NoIcon;
    }
}

// Each filter as "Description (*.ext)", from the pairs that end in null characters.
QStringList FiltersOf(const std::string& pairs) {
    QStringList filters;
    const QStringList parts = QtText(pairs).split(QChar(0));
    for (qsizetype i = 0; i + 1 < parts.size() && !parts[i].isEmpty(); i += 2) {
        const bool namesPattern = parts[i].contains('(');
        filters.append(namesPattern ? parts[i] : parts[i] + " (" + parts[i + 1] + ")");
    }
    return filters;
}

}  // namespace

int ShowMessage(QWidget* parent, const MessageRequest& request) {
    QMessageBox box(parent);
    box.setWindowTitle(QtText(request.Caption.View()));
    // A file name may look like a tag.
    box.setTextFormat(Qt::PlainText);
    box.setText(QtText(request.Text.View()));
    box.setIcon(IconOf(request.Type));
    const UINT buttons = request.Type & 0x0FU;
    if (buttons != MB_YESNO && buttons != MB_YESNOCANCEL) {
        box.exec();
        return IDOK;
    }
    const bool canCancel = buttons == MB_YESNOCANCEL;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    if (canCancel) {
        box.addButton(QMessageBox::Cancel);
    }
    box.setEscapeButton(canCancel ? QMessageBox::Cancel : QMessageBox::No);
    const int pressed = box.exec();
    return pressed == QMessageBox::Yes ? IDYES : pressed == QMessageBox::No ? IDNO : IDCANCEL;
}

int ShowMenu(QWidget* parent, const MenuRequest& request) {
    QMenu menu(parent);
    for (const MenuRequest::Item& item : request.Items) {
        if (item.Id == 0) {
            menu.addSeparator();
            continue;
        }
        QAction* const action = menu.addAction(QtText(item.Text.View()));
        action->setData(item.Id);
        action->setEnabled(item.IsEnabled);
    }
    const QAction* const chosen = menu.exec({request.Place.x, request.Place.y});
    return chosen ? chosen->data().toInt() : 0;
}

bool ChooseFile(QWidget* parent, const FileRequest& request, CString& path) {
    QFileDialog dialog(parent);
    // The toolkit's own dialog looks and works the same on every desktop.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Only a dialog for saving asks before a file is overwritten.
    const bool asksBefore = (request.Flags & OFN_OVERWRITEPROMPT) != 0;
    dialog.setAcceptMode(request.Open && !asksBefore ? QFileDialog::AcceptOpen
                                                     : QFileDialog::AcceptSave);
    dialog.setNameFilters(FiltersOf(request.Filter));
    dialog.setDefaultSuffix(QtText(request.DefaultExtension.View()));
    dialog.setDirectory(QtPath(request.InitialFolder));
    if (!request.FileName.IsEmpty()) {
        dialog.selectFile(QtPath(request.FileName));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return false;
    }
    path = PathOf(dialog.selectedFiles().first());
    return true;
}

bool ChooseColor(QWidget* parent, const ColorRequest& request, COLORREF& color) {
    QColorDialog dialog(QtColor(request.Color), parent);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    color = ColorOf(dialog.currentColor());
    return true;
}

}  // namespace PLATFORM::detail
