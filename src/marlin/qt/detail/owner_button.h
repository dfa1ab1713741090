// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/window_types.h>

#include <QImage>
#include <QPushButton>

namespace PLATFORM {

/// A button whose window class draws it. It shows what was drawn last, until it is asked to draw
/// anew or has another size.
class OwnerButton final : public QPushButton {
public:
    explicit OwnerButton(HWND handle) : m_Handle(handle) {}

    void DrawAnew();
    /// What it shows, without the mark of the focus.
    [[nodiscard]] const QImage& Face() const noexcept { return m_Face; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { DrawAnew(); }

private:
    HWND m_Handle;
    QImage m_Face;
};

}  // namespace PLATFORM
