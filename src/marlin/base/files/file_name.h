// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

/// The path of a file, whose extension can be replaced. A value, empty at first.
/// @code
/// FileName name(CString("charts/depths.txt"));
/// name.SetExtension("cdf");
/// assert(CString(name.c_str()) == "charts/depths.cdf");
/// assert(GetTitleFromPath(name.c_str()) == "depths");
/// @endcode
class MARLIN_API FileName {
public:
    FileName() = default;
    FileName(const CString& path) : m_Path(path) {}

    [[nodiscard]] const char* c_str() const noexcept { return m_Path.GetString(); }

    /// Replaces the text after the last dot of the name, or adds a dot and the extension to a
    /// name without one; dots that begin the name are part of it. A leading dot of
    /// `extension` is optional, an empty one removes extension and dot. A path without a name
    /// (empty, or ending in "/", "." or "..") stays.
    void SetExtension(const CString& extension);

private:
    CString m_Path;
};

/// The name of the file without its folder and extension.
[[nodiscard]] MARLIN_API CString GetTitleFromPath(const CString& path);
