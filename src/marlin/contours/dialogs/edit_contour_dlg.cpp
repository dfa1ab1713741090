// SPDX-License-Identifier: MIT
#include <marlin/base/help_provider.h>
#include <marlin/contours/dialogs/detail/contour_rows.h>
#include <marlin/contours/dialogs/edit_contour_dlg.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/resources/dialogs.h>

using MARLINSUITE::detail::LevelText;
using enum MARLINSUITE::DIALOG;
using enum MARLINSUITE::CONTROL_ID;

namespace {

constexpr int thinnestLine = 0;
constexpr int widestLine = 10;

}  // namespace

BEGIN_MESSAGE_MAP(CEditContourDlg, CDialog)
ON_WM_HELPINFO()
END_MESSAGE_MAP()

CEditContourDlg::CEditContourDlg(CWnd* parent) : CDialog(DIALOG_CONTOUR_PROPERTIES, parent) {}

void CEditContourDlg::ExchangeLevel(CDataExchange& exchange) {
    // Shown with two decimals, and read back from them even when nothing was typed.
    if (exchange.m_bSaveAndValidate) {
        DDX_Text(&exchange, CONTROL_LEVEL, m_Definition.Level);
    } else {
        CString text = LevelText(m_Definition.Level);
        DDX_Text(&exchange, CONTROL_LEVEL, text);
    }
}

void CEditContourDlg::ExchangeColor(const CDataExchange& exchange) {
    // The button has no text that could be refused, but others may have been.
    if (exchange.HasFailed()) {
        return;
    }
    if (exchange.m_bSaveAndValidate) {
        m_Definition.Color = m_ColorButton.GetColor();
    } else {
        m_ColorButton.SetColor(m_Definition.Color);
        m_ColorButton.InvalidateRect(nullptr);
    }
}

void CEditContourDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, CONTROL_LINE_WIDTH_SPIN, m_WidthSpin);
    DDX_Control(exchange, CONTROL_COLOR, m_ColorButton);
    // The framework exchanges a check box with an int.
    int annotate = m_Definition.Annotate ? 1 : 0;
    ExchangeLevel(*exchange);
    DDX_CBIndex(exchange, CONTROL_LINE_STYLE, m_Definition.LineType);
    DDX_Text(exchange, CONTROL_LINE_WIDTH, m_Definition.LineWidth);
    DDX_Check(exchange, CONTROL_SHOW_LABELS, annotate);
    ExchangeColor(*exchange);
    m_Definition.Annotate = annotate != 0;
}

BOOL CEditContourDlg::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    m_WidthSpin.SetRange(thinnestLine, widestLine);
    GetDlgItem(CONTROL_LEVEL)->EnableWindow(!m_Several);
    return result;
}

BOOL CEditContourDlg::OnHelpInfo(HELPINFO* help) {
    return HelpProvider::GetInstance().ShowHelpfile(this) ? 1 : CDialog::OnHelpInfo(help);
}
