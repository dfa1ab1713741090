// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/gdi/color_button.h>
#include <marlin/platform/windowing/c_dialog.h>
#include <marlin/platform/windowing/c_spin_button_ctrl.h>

/// Edits the properties of one contour definition, or of several that keep their levels. The
/// object may be run again and again, and starts with a blank definition.
/// @code
/// CEditContourDlg dialog;
/// dialog.SetDefinition({0.5F, 1, 20.0, 0x0000FF, true});
/// if (dialog.DoModal() == IDOK) {
///     ContourDefinitionList list;
///     list.Add(dialog.Definition());
/// }
/// @endcode
class MARLIN_API CEditContourDlg : public CDialog {
public:
    explicit CEditContourDlg(CWnd* parent = nullptr);

    /// After the dialog was confirmed, its level has the two decimals that were shown.
    [[nodiscard]] const ContourDefinitionList::ContourDefInfo& Definition() const noexcept {
        return m_Definition;
    }
    void SetDefinition(const ContourDefinitionList::ContourDefInfo& definition) noexcept {
        m_Definition = definition;
    }
    /// True: the definition is for several ones, and its level cannot be typed.
    void SetSeveral(bool several) noexcept { m_Several = several; }

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    BOOL OnHelpInfo(HELPINFO* help);

    DECLARE_MESSAGE_MAP()

private:
    void ExchangeLevel(CDataExchange& exchange);
    void ExchangeColor(const CDataExchange& exchange);

    ContourDefinitionList::ContourDefInfo m_Definition;
    bool m_Several = false;
    CSpinButtonCtrl m_WidthSpin;
    ColorButton m_ColorButton;
};
