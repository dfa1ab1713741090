// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/boxes.h>
#include <marlin/qt/detail/qt_text.h>

#include <QColorDialog>
#include <QFileDialog>
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
    if ((request.Type & 0x0FU) != MB_YESNO) {
        box.exec();
        return IDOK;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? IDYES : IDNO;
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
