// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/detail/read_file.h>
#include <marlin/resources/texts.h>

namespace MARLINSUITE::detail {

bool ReadFile::Look(const std::string& path, Stamp& stamp) {
    std::error_code missing;
    stamp.Time = std::filesystem::last_write_time(path, missing);
    if (!missing) {
        stamp.Size = std::filesystem::file_size(path, missing);
    }
    return !missing;
}

void ReadFile::Note(const std::string& path) {
    m_Path = Look(path, m_Stamp) ? path : std::string();
}

std::string ReadFile::QuestionBefore(const std::string& path) const {
    Stamp now;
    if (!Look(path, now)) {
        return {};
    }
    if (path != m_Path) {
        return std::string(Message(MESSAGE::REPLACE_UNREAD_FILE));
    }
    return now == m_Stamp ? std::string() : std::string(Message(MESSAGE::REPLACE_CHANGED_FILE));
}

}  // namespace MARLINSUITE::detail
