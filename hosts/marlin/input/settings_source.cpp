// SPDX-License-Identifier: MIT
#include "settings_source.h"

#include "input.h"
#include "output/printable.h"
#include <marlin/base/files/file_replacement.h>

namespace HOST {

bool IsSealed(const Section& section) {
    return section.HasKey(*Section::m_ChecksumName) && !section.IsModified();
}

ErrorString SettingsSource::Open(const std::string& path) {
    std::string text;
    if (ErrorString error = MARLINSUITE::ReadFile(path, text, LargestTextFile); !error.Empty()) {
        return error;
    }
    m_Path = path;
    m_Scan = SettingsScan::Of(text);
    if (!m_Scan.Fault.empty()) {
        return ErrorString(AtLine(path, m_Scan.FaultLine, m_Scan.Fault));
    }
    m_Preamble = text.substr(0, m_Scan.PreambleSize);
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

ErrorString SettingsSource::CanBeSaved() const {
    const SettingsRemark* const loss = m_Scan.FirstLoss();
    if (!loss) {
        return {};
    }
    return ErrorString(AtLine(m_Path, loss->Line, loss->Cause) + ", and would be lost");
}

ErrorString SettingsSource::Save() const {
    return MARLINSUITE::ReplaceFile(m_Path, Text());
}

}  // namespace HOST
