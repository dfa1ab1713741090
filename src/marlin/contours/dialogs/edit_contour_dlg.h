// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>
#include <marlin/gdi/color_button.h>
#include <marlin/platform/windowing/c_dialog.h>
#include <marlin/platform/windowing/c_spin_button_ctrl.h>

/// Shows the properties of one contour definition, or of several that keep their levels. It may
/// be run again and again, and begins with a blank definition.
class MARLIN_API CEditContourDlg : public CDialog {
public:
    explicit CEditContourDlg(CWnd* parent = nullptr);
    ~CEditContourDlg() override;

    /// Its level has the two decimals of its text once the dialog was confirmed.
    [[nodiscard]] const ContourDefinitionList::ContourDefInfo& Definition() const noexcept {
        return m_Definition;
    }
    void SetDefinition(const ContourDefinitionList::ContourDefInfo& definition) noexcept {
        m_Definition = definition;
    }
    /// Whether it stands for several definitions; then the level cannot be typed.
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
