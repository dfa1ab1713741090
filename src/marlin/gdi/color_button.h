// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_button.h>

/// A push button whose face is a color, with its caption in the inverse color; a click lets the
/// user choose another color. It is drawn like this only where its dialog template makes it
/// owner-drawn. Black at first.
/// @code
/// struct LineDialog : CDialog {
///     ColorButton Button;
///     LineDialog() : CDialog(MARLINSUITE::DIALOG_CONTOUR_PROPERTIES) {}
///     void DoDataExchange(CDataExchange* exchange) override {
///         DDX_Control(exchange, MARLINSUITE::CONTROL_COLOR, Button);
///     }
/// };
/// LineDialog dialog;
/// dialog.Button.SetColor(0x0000FF);  // red
/// @endcode
class MARLIN_API ColorButton : public CButton {
public:
    ColorButton() noexcept = default;
    ~ColorButton() override;

    /// A color word: red is the lowest byte.
    [[nodiscard]] unsigned long GetColor() const noexcept { return m_Color; }

    /// Stores the lower 32 bits. The button shows the color when it is next drawn.
    void SetColor(unsigned long color) noexcept { m_Color = color & 0xFFFFFFFF; }
    /// Does what a click does.
    void ForceColorChange() { OnClicked(); }

    /// With Control, C copies the color as "#rrggbb" and V takes one that `MARLINSUITE::ParseColor`
    /// understands; another text changes nothing.
    BOOL PreTranslateMessage(const MSG* message) override;

    /// Draws the button when all of it is to be drawn: the focus and a press show nothing.
    void DrawItem(DRAWITEMSTRUCT* draw) override;

protected:
    void OnClicked();

    DECLARE_MESSAGE_MAP()

private:
    unsigned long m_Color = 0;
};
