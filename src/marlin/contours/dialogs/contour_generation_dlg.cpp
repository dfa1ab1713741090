// SPDX-License-Identifier: MIT
#include <marlin/base/help_provider.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/resources/dialogs.h>

using enum MARLINSUITE::DIALOG;
using enum MARLINSUITE::CONTROL_ID;

BEGIN_MESSAGE_MAP(CContourGenerationDlg, CDialog)
ON_WM_HELPINFO()
END_MESSAGE_MAP()

CContourGenerationDlg::CContourGenerationDlg(CWnd* parent)
    : CDialog(DIALOG_GENERATE_CONTOURS, parent) {}

void CContourGenerationDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, CONTROL_HIGHEST_LEVEL, m_HighestLevel);
    DDX_Text(exchange, CONTROL_LOWEST_LEVEL, m_LowestLevel);
    DDX_Text(exchange, CONTROL_INTERVAL, m_Interval);
}

BOOL CContourGenerationDlg::OnHelpInfo(HELPINFO* help) {
    return HelpProvider::GetInstance().ShowHelpfile(this) ? 1 : CDialog::OnHelpInfo(help);
}
