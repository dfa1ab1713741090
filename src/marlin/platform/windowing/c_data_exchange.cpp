// SPDX-License-Identifier: MIT
#include <marlin/core/number_text.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/platform/windowing/detail/window_table.h>
#include <marlin/platform/windowing/window_system.h>

#include <limits>

using PLATFORM::DropDownList;
using PLATFORM::WindowSystem;
using PLATFORM::detail::WindowTable;

namespace {

template <typename Real>
void ExchangeReal(CDataExchange& exchange, int id, Real& value) {
    CWnd* const edit = exchange.PrepareCtrl(id);
    if (!edit) {
        return;
    }
    if (!exchange.m_bSaveAndValidate) {
        // As many digits as survive a round trip, so that 0.1 + 0.2 is shown as 0.3.
        std::string shown;
        MARLINSUITE::AppendGeneral(shown, static_cast<double>(value),
                                   std::numeric_limits<Real>::digits10);
        edit->SetWindowText(shown.c_str());
        return;
    }
    CString text;
    edit->GetWindowText(text);
    if (!MARLINSUITE::ParseWhole(text.View(), value)) {
        exchange.Fail(*edit, NumberWanted(WindowTable::Get().Name(edit->GetSafeHwnd()), text));
    }
}

}  // namespace

CString NumberWanted(const std::string& field, const CString& text) {
    const CString start((field + ": ").c_str());
    if (text.IsEmpty()) {
        return start + "a number is wanted";
    }
    return start + text + " is no number" + (text.Find(',') >= 0 ? "; use a point" : "");
}

CWnd* CDataExchange::PrepareCtrl(int id) const {
    return m_Failed ? nullptr : m_pDlgWnd->GetDlgItem(id);
}

void CDataExchange::Fail(CWnd& control, const char* message) {
    m_Failed = true;
    m_pDlgWnd->MessageBox(message, nullptr, MB_OK | MB_ICONEXCLAMATION);
    control.SetFocus();
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
    if (!control.m_hWnd && exchange->PrepareCtrl(id)) {
        control.SubclassDlgItem(static_cast<UINT>(id), exchange->m_pDlgWnd);
    }
}

void DDX_Text(CDataExchange* exchange, int id, CString& value) {
    if (CWnd* const edit = exchange->PrepareCtrl(id)) {
        if (exchange->m_bSaveAndValidate) {
            edit->GetWindowText(value);
        } else {
            edit->SetWindowText(value);
        }
    }
}

void DDX_Text(CDataExchange* exchange, int id, float& value) {
    ExchangeReal(*exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, double& value) {
    ExchangeReal(*exchange, id, value);
}

void DDX_Check(CDataExchange* exchange, int id, int& value) {
    if (CWnd* const box = exchange->PrepareCtrl(id)) {
        WindowSystem& system = WindowSystem::Current();
        if (exchange->m_bSaveAndValidate) {
            value = system.IsChecked(box->m_hWnd) ? 1 : 0;
        } else {
            system.SetChecked(box->m_hWnd, value != 0);
        }
    }
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& value) {
    const CWnd* const combo = exchange->PrepareCtrl(id);
    if (!combo) {
        return;
    }
    DropDownList* const items = WindowSystem::Current().FindDropDown(combo->m_hWnd);
    if (exchange->m_bSaveAndValidate) {
        value = items ? items->CurrentItem() : -1;
    } else if (items) {
        items->SetCurrentItem(value);
    }
}
