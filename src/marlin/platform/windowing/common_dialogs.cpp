// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_color_dialog.h>
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/window_system.h>

#include <algorithm>

using PLATFORM::WindowSystem;

namespace {

HWND HandleOf(const CWnd* window) noexcept {
    return window ? window->GetSafeHwnd() : nullptr;
}

}  // namespace

CFileDialog::CFileDialog(bool openFile, const char* defaultExtension, const char* fileName,
                         unsigned long flags, const char* filter, CWnd* parent)
    : m_ofn{nullptr, flags},
      m_OpenFile(openFile),
      m_DefaultExtension(defaultExtension),
      m_FileName(fileName),
      m_Filter(filter ? filter : ""),
      m_Parent(parent) {
    std::ranges::replace(m_Filter, '|', '\0');
}

int CFileDialog::DoModal() {
    const PLATFORM::FileRequest request = {m_OpenFile,
                                           m_DefaultExtension,
                                           m_Filter,
                                           m_ofn.lpstrInitialDir,
                                           static_cast<UINT>(m_ofn.Flags),
                                           m_FileName};
    const bool chosen = WindowSystem::Current().ChooseFile(HandleOf(m_Parent), request, m_Path);
    return chosen ? IDOK : IDCANCEL;
}

int CColorDialog::DoModal() {
    const PLATFORM::ColorRequest request = {m_cc.rgbResult, static_cast<UINT>(m_cc.Flags)};
    const bool chosen =
        WindowSystem::Current().ChooseColor(HandleOf(m_Parent), request, m_cc.rgbResult);
    return chosen ? IDOK : IDCANCEL;
}
