// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_dialog.h>

/// Asks for a range of levels to generate contours in. All values are 0 at first; any numbers are
/// taken.
class MARLIN_API CContourGenerationDlg : public CDialog {
public:
    explicit CContourGenerationDlg(CWnd* parent = nullptr);

    [[nodiscard]] double HighestLevel() const noexcept { return m_HighestLevel; }
    [[nodiscard]] double LowestLevel() const noexcept { return m_LowestLevel; }
    [[nodiscard]] double Interval() const noexcept { return m_Interval; }

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnHelpInfo(HELPINFO* help);

    DECLARE_MESSAGE_MAP()

private:
    double m_HighestLevel = 0.0;
    double m_LowestLevel = 0.0;
    double m_Interval = 0.0;
};
