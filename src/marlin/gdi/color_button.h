// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_button.h>

/// A push button whose face is a color, with its caption in the inverse color; a click lets the
/// user choose another one. Drawn so only where its dialog template makes it owner-drawn. Black
/// at first.
class MARLIN_API ColorButton : public CButton {
public:
    ColorButton() noexcept = default;
    ~ColorButton() override;

    /// Color word.
    [[nodiscard]] unsigned long GetColor() const noexcept { return m_Color; }

    /// The button keeps its old face until it is next drawn.
    void SetColor(unsigned long color) noexcept { m_Color = color; }
    /// Does what a click does.
    void ForceColorChange() { OnClicked(); }

    /// Draws the whole button, or nothing when less is asked for.
    void DrawItem(DRAWITEMSTRUCT* draw) override;

protected:
    void OnClicked();

    DECLARE_MESSAGE_MAP()

private:
    unsigned long m_Color = 0;
};
