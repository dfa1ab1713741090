// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/messages.h>

#include <QImage>
#include <QPushButton>

namespace PLATFORM::detail {

/// A button that its window class draws. It shows what was drawn last until it is to be drawn again
/// or gets another size.
class OwnerButton final : public QPushButton {
public:
    explicit OwnerButton(HWND handle) : m_Handle(handle) {}

    void DrawAgain();
    /// The picture that was drawn last, without the mark of the focus.
    [[nodiscard]] const QImage& Face() const noexcept { return m_Face; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { DrawAgain(); }

private:
    HWND m_Handle;
    QImage m_Face;
};

}  // namespace PLATFORM::detail
