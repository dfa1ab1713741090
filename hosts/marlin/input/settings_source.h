// SPDX-License-Identifier: MIT
#pragma once

#include "output/output.h"
#include "settings_scan.h"
#include "settings_text.h"
#include <marlin/base/error_string.h>
#include <marlin/platform/kernel/file_lock.h>
#include <marlin/settings/ini_file.h>

#include <string>

namespace HOST {

/// Returns true for a section with a seal that still fits.
[[nodiscard]] bool IsSealed(const Section& section);

/// A settings file that a command reads, and may change. It is read once: the scan, the sections
/// and the text come from the same bytes.
class SettingsSource {
public:
    /// Failures are "path:line: cause": what the system or the library refuses, files of more
    /// than `LargestTextFile` bytes, binary files and endless lines. A fault of syntax leaves
    /// the sections before it.
    [[nodiscard]] ErrorString Open(const std::string& path);
    /// The same from the text of a file.
    [[nodiscard]] ErrorString OpenText(const std::string& path, const std::string& text);
    /// As `Open`, with a failure for a file without sections.
    [[nodiscard]] ErrorString OpenWithSections(const std::string& path);

    /// Keeps other programs from changing the file from before the reading to the end of the
    /// command. Fails when another one does not let go of it.
    void Lock(const std::string& path);
    /// Changes are made in the text. What the library reads from it stays as it was.
    [[nodiscard]] SettingsText& Text() noexcept { return m_Text; }
    /// Fails when the file cannot be written.
    void Save(Output& output) const;

    [[nodiscard]] const std::string& Path() const noexcept { return m_Path; }
    [[nodiscard]] const SettingsScan& Scan() const noexcept { return m_Scan; }
    [[nodiscard]] IniFile& File() noexcept { return m_File; }
    [[nodiscard]] const IniFile& File() const noexcept { return m_File; }

private:
    PLATFORM::FileLock m_Lock;
    std::string m_Path;
    SettingsText m_Text;
    SettingsScan m_Scan;
    IniFile m_File;
};

}  // namespace HOST
