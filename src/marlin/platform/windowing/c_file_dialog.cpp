// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_file_dialog.h>
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/window_system.h>

#include <algorithm>

namespace {

// A name that starts with its only dot, as hidden files do, has no extension.
CString WithExtension(const CString& path, const CString& extension) {
    const CString name = path.Mid(path.ReverseFind('/') + 1);
    const bool isComplete = extension.IsEmpty() || name.IsEmpty() || name.ReverseFind('.') > 0;
    return isComplete ? path : path + '.' + extension;
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
    // The framework wants null characters, which a text of resources cannot hold.
    std::ranges::replace(m_Filter, '|', '\0');
}

int CFileDialog::DoModal() {
    const PLATFORM::FileRequest request = {m_OpenFile,
                                           m_DefaultExtension,
                                           m_Filter,
                                           m_ofn.lpstrInitialDir,
                                           static_cast<UINT>(m_ofn.Flags),
                                           m_FileName};
    const HWND parent = m_Parent ? m_Parent->GetSafeHwnd() : nullptr;
    CString path;
    if (!PLATFORM::WindowSystem::Current().ChooseFile(parent, request, path)) {
        return IDCANCEL;
    }
    m_Path = WithExtension(path, m_DefaultExtension);
    return IDOK;
}
