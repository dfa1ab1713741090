// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace MARLINSUITE::detail {

/// The file that a list was read from, as it was then, so that a list replaces no file that nobody
/// has read. Of no file at first.
class ReadFile {
public:
    /// Notes the file as it is now.
    void Note(const std::string& path);
    /// What to ask before a list replaces a file; empty where nothing unread would be lost.
    [[nodiscard]] std::string QuestionBefore(const std::string& path) const;

private:
    struct Stamp {
        std::filesystem::file_time_type Time;
        std::uintmax_t Size = 0;
        bool operator==(const Stamp& other) const noexcept = default;
    };

    // False where there is no such file.
    static bool Look(const std::string& path, Stamp& stamp);

    std::string m_Path;
    Stamp m_Stamp;
};

}  // namespace MARLINSUITE::detail
