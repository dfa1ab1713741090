// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/font_types.h>
#include <marlin/platform/windowing/c_combo_box.h>

/// A drop-down list of the installed outline font faces. Empty until it is filled.
class MARLIN_API FontCombo : public CComboBox {
public:
    FontCombo() noexcept = default;
    ~FontCombo() override;

    /// Appends every face, so a second call lists each twice. Does nothing without a control.
    void FillCombo();

protected:
    DECLARE_MESSAGE_MAP()

private:
    static int HandleFonts(const LOGFONTA* font, const TEXTMETRICA* metrics, unsigned long type,
                           long combo);
};
