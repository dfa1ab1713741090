// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

#include <unistd.h>

/// A folder of one test case, removed with it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        static std::atomic<int> counter = 0;
        m_Path = std::filesystem::temp_directory_path() /
                 ("marlin-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
        std::filesystem::create_directories(m_Path);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;  // what cannot be removed is left to the system
        std::filesystem::remove_all(m_Path, ignored);
    }

    [[nodiscard]] std::string File(const std::string& name) const { return m_Path / name; }

    /// Writes a file, and the folders that it needs; its full path.
    std::string Write(const std::string& name, std::string_view bytes) const {
        std::filesystem::create_directories((m_Path / name).parent_path());
        std::ofstream(File(name), std::ios::binary) << bytes;
        return File(name);
    }

    [[nodiscard]] static std::string Read(const std::string& path) {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }

    [[nodiscard]] int NumFiles() const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(m_Path), {}));
    }

private:
    std::filesystem::path m_Path;
};
