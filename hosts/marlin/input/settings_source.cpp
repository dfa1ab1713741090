// SPDX-License-Identifier: MIT
#include "settings_source.h"

#include "files.h"

namespace HOST {

bool IsSealed(const Section& section) {
    return section.HasKey(*Section::m_ChecksumName) && !section.IsModified();
}

ErrorString SettingsSource::Open(const std::string& path) {
    std::string text;
    if (ErrorString error = ReadText(path, text); !error.Empty()) {
        return error;
    }
    return OpenText(path, text);
}

ErrorString SettingsSource::OpenText(const std::string& path, const std::string& text) {
    m_Path = path;
    m_Scan = SettingsScan::Of(text);
    if (!m_Scan.Fault.empty()) {
        return ErrorString(AtLine(path, m_Scan.FaultLine, m_Scan.Fault));
    }
    m_Text = SettingsText(text, m_Scan.PreambleSize);
    ErrorString result = m_File.OpenText(text);
    if (!result.Empty()) {
        std::string cause = path + result.Cause();  // which begins with ":line"
        if (m_Scan.FirstOfDuplicate > 0) {
            cause += " The first is on line " + NumberText(m_Scan.FirstOfDuplicate) + ".";
        }
        result.SetCause(cause);
    }
    return result;
}

ErrorString SettingsSource::OpenWithSections(const std::string& path) {
    ErrorString result = Open(path);
    if (result.Empty() && m_File.Empty()) {
        return ErrorString(path + ": no section");
    }
    return result;
}

void SettingsSource::Lock(const std::string& path) {
    LockForChange(path, m_Lock);
}

void SettingsSource::Save(Output& output) const {
    WriteFile(m_Path, m_Text.Bytes(), output);
}

}  // namespace HOST
