// SPDX-License-Identifier: MIT
#pragma once

#include "settings_scan.h"
#include <marlin/base/error_string.h>
#include <marlin/settings/ini_file.h>

#include <string>

namespace HOST {

/// Returns true for a section with a seal that still fits.
[[nodiscard]] bool IsSealed(const Section& section);

/// A settings file that a command reads, and may change. It is read once: the scan and the
/// sections come from the same bytes. Saving keeps all before the first section header byte for
/// byte; sections are written in the library's own columns.
class SettingsSource {
public:
    /// Failures are "path:line: cause": what the system or the library refuses, files of more
    /// than `LargestTextFile` bytes, binary files and endless lines. A fault of syntax leaves
    /// the sections before it.
    [[nodiscard]] ErrorString Open(const std::string& path);
    /// The same, with a failure for a file without sections.
    [[nodiscard]] ErrorString OpenWithSections(const std::string& path);

    /// A failure for a file of which saving would drop more than the columns.
    [[nodiscard]] ErrorString CanBeSaved() const;
    [[nodiscard]] ErrorString Save() const;
    /// The text that `Save` writes.
    [[nodiscard]] std::string Text() const { return m_Preamble + m_File.Text(); }

    [[nodiscard]] const std::string& Path() const noexcept { return m_Path; }
    [[nodiscard]] const SettingsScan& Scan() const noexcept { return m_Scan; }
    [[nodiscard]] IniFile& File() noexcept { return m_File; }
    [[nodiscard]] const IniFile& File() const noexcept { return m_File; }

private:
    std::string m_Path;
    std::string m_Preamble;
    SettingsScan m_Scan;
    IniFile m_File;
};

}  // namespace HOST
