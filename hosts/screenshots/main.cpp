// SPDX-License-Identifier: MIT
// Writes pictures of the dialogs as PNG into a folder, at the scale that QT_SCALE_FACTOR asks for.
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/platform/windowing/c_color_dialog.h>
#include <marlin/qt/window_system.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <string>

namespace {

constexpr COLORREF blue = 0xAF5C00;  // red in the lowest byte

struct Picture {
    const char* Name;
    std::function<void()> Open;
};

// Takes the picture of the dialog that is open as soon as it is painted, and closes the dialog.
void TakeOnceShown(const QString& file, bool& isTaken) {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog || !dialog->isVisible()) {
        QTimer::singleShot(10, qApp, [file, &isTaken] { TakeOnceShown(file, isTaken); });
        return;
    }
    isTaken = dialog->grab().save(file, "PNG");
    dialog->close();
}

bool Take(const Picture& picture, const QString& folder, const QString& ending) {
    const QString file = folder + "/" + picture.Name + ending + ".png";
    bool isTaken = false;
    QTimer::singleShot(0, qApp, [&] { TakeOnceShown(file, isTaken); });
    picture.Open();
    if (!isTaken) {
        static_cast<void>(std::fprintf(stderr, "screenshots: cannot write %s\n", qPrintable(file)));
    }
    return isTaken;
}

void OpenEditor(const std::string& path) {
    CContourEditor editor;
    editor.FileName(CString(path));
    editor.DoModal();
}

void OpenProperties() {
    CEditContourDlg dialog;
    dialog.SetDefinition({1.0F, 1, -20.0, blue, true});
    dialog.DoModal();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        static_cast<void>(std::fputs("usage: screenshots CONTOURS.cdf FOLDER\n", stderr));
        return 2;
    }
    if (!MARLINSUITE::UseQtWindows()) {
        static_cast<void>(
            std::fputs("screenshots: no display; QT_QPA_PLATFORM=offscreen needs none\n", stderr));
        return 2;
    }
    const Picture pictures[] = {
        {"contour_editor", [argv] { OpenEditor(argv[1]); }},
        {"contour_properties", OpenProperties},
        {"generate_contours", [] { CContourGenerationDlg().DoModal(); }},
        {"color_dialog", [] { CColorDialog(blue, CC_FULLOPEN).DoModal(); }},
    };
    const QString ending = qApp->devicePixelRatio() > 1.5 ? "_200" : "";
    bool areAllTaken = true;
    for (const Picture& picture : pictures) {
        areAllTaken = Take(picture, argv[2], ending) && areAllTaken;
    }
    return areAllTaken ? 0 : 1;
}
