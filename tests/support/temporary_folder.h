// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <stdlib.h>

/// A folder of its own for one test, removed with all it holds.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "marlin-XXXXXX").string();
        m_Path = ::mkdtemp(pattern.data());
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_Path, error);
    }

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_Path; }

    /// The full path of a name in the folder.
    [[nodiscard]] std::string Name(const std::string& name) const { return m_Path / name; }

    /// Writes a file, and the folders that it needs; its full path.
    std::string Write(const std::string& name, std::string_view bytes) const {
        std::filesystem::create_directories((m_Path / name).parent_path());
        std::ofstream(m_Path / name, std::ios::binary) << bytes;
        return Name(name);
    }

    [[nodiscard]] std::string Read(const std::string& name) const {
        std::ifstream file(m_Path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::filesystem::path m_Path;
};
