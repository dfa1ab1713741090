// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

#include <string>

/// One exchange of values between the fields of a dialog and its controls. After a text was
/// refused, the rest of the exchange does nothing.
class MARLIN_API CDataExchange {
public:
    CDataExchange(CWnd* dialog, bool saveAndValidate) noexcept
        : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

    /// True after a text was refused.
    [[nodiscard]] bool HasFailed() const noexcept { return m_Failed; }

    /// The control of that number; null when there is none, and after a refusal.
    [[nodiscard]] CWnd* PrepareCtrl(int id) const;
    /// Refuses: shows a message and puts the focus back on the control.
    void Fail(CWnd& control, const char* message);

    const bool m_bSaveAndValidate;  ///< True: from the controls to the fields.
    CWnd* const m_pDlgWnd;

private:
    bool m_Failed = false;
};

/// Says that a text is not the number that a field wants: "Interval: 7,5 is no number; use a
/// point".
[[nodiscard]] MARLIN_API CString NumberWanted(const std::string& field, const CString& text);

/// Attaches a field to its control, the first time.
MARLIN_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
/// The text of an edit. A number has to be all of the text, but for blanks around it, and finite;
/// another text is refused with a message, the field keeps its value and the edit gets the focus.
/// A `double` is shown with up to 15 significant digits, a `float` with up to 6.
MARLIN_API void DDX_Text(CDataExchange* exchange, int id, CString& value);
MARLIN_API void DDX_Text(CDataExchange* exchange, int id, float& value);
MARLIN_API void DDX_Text(CDataExchange* exchange, int id, double& value);
/// 1 for a checked box, 0 for another.
MARLIN_API void DDX_Check(CDataExchange* exchange, int id, int& value);
/// The index of a drop-down list's item, -1 for none.
MARLIN_API void DDX_CBIndex(CDataExchange* exchange, int id, int& value);
