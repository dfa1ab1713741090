// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

#include <string>

class CWnd;

/// Asks before an existing file is taken.
inline constexpr unsigned long OFN_OVERWRITEPROMPT = 0x2;
/// Has no check box for opening read-only.
inline constexpr unsigned long OFN_HIDEREADONLY = 0x4;

/// The folder and the options that a file dialog starts with.
struct OPENFILENAMEA {
    const char* lpstrInitialDir = nullptr;
    unsigned long Flags = 0;
};

/// The platform's dialog that asks for a file.
class MARLIN_API CFileDialog {
public:
    OPENFILENAMEA m_ofn;

    /// `filter` is a list of pairs, a description and a pattern, each ended by "|", and one more
    /// "|". A name without an extension gets the default one. The texts are copied, but for
    /// `m_ofn.lpstrInitialDir`, which has to last until `DoModal`.
    explicit CFileDialog(bool openFile, const char* defaultExtension = nullptr,
                         const char* fileName = nullptr, unsigned long flags = 0,
                         const char* filter = nullptr, CWnd* parent = nullptr);

    /// `IDOK` when a file was chosen, else `IDCANCEL`.
    int DoModal();
    /// The full path of the chosen file.
    [[nodiscard]] const CString& GetPathName() const noexcept { return m_Path; }

private:
    bool m_OpenFile;
    CString m_DefaultExtension;
    CString m_FileName;
    std::string m_Filter;
    CWnd* m_Parent;
    CString m_Path;
};
