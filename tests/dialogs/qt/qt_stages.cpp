// SPDX-License-Identifier: MIT
#include "scripted_windows.h"
#include <marlin/platform/drawing/drawing_constants.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/owner_button.h>
#include <marlin/qt/detail/qt_text.h>

#include <QByteArray>
#include <cstdio>

#include <dialogs/stage.h>
#include <gtest/gtest.h>

namespace {

class QtStage final : public Stage {
public:
    PLATFORM::WindowSystem& System() override { return m_Windows; }
    PLATFORM::UserScript& Script() override { return m_Windows.Script(); }

    COLORREF FacePixel(HWND button, int x, int y) override {
        return PLATFORM::detail::ColorOf(Button(button).Face().pixelColor(x, y));
    }
    SIZE FaceSize(HWND button) override {
        const QSize size = Button(button).Face().size();
        return {size.width(), size.height()};
    }
    COLORREF SwatchPixel(HWND list, int row, int x, int y) override {
        const auto& shown = List(list);
        const QModelIndex cell = shown.model()->index(row, 0);
        const QVariant icon = shown.model()->data(cell, Qt::DecorationRole);
        const QColor color = icon.value<QIcon>().pixmap(16, 16).toImage().pixelColor(x, y);
        return color.alpha() == 0 ? CLR_INVALID : PLATFORM::detail::ColorOf(color);
    }
    bool IsInView(HWND list, int row) override {
        const auto& shown = List(list);
        return shown.viewport()->rect().intersects(shown.visualRect(shown.model()->index(row, 0)));
    }

private:
    PLATFORM::detail::OwnerButton& Button(HWND button) {
        return dynamic_cast<PLATFORM::detail::OwnerButton&>(*m_Windows.Widget(button));
    }
    PLATFORM::detail::ListWidget& List(HWND list) {
        return dynamic_cast<PLATFORM::detail::ListWidget&>(*m_Windows.Widget(list));
    }

    ScriptedWindows m_Windows;
};

}  // namespace

std::vector<StageKind> StageKinds() {
    return {{"Qt", [] { return std::make_unique<QtStage>(); }}};
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (!MARLINSUITE::UseQtWindows()) {
        std::fputs("no display\n", stderr);
        return 2;
    }
    return RUN_ALL_TESTS();
}
