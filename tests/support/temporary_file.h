// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

/// The path of a file of the running test, which need not exist and is removed at the end.
class TemporaryFile {
public:
    TemporaryFile() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        m_Path = testing::TempDir() + test->test_suite_name() + "." + test->name();
        std::filesystem::remove(m_Path);
    }
    explicit TemporaryFile(const std::string& bytes) : TemporaryFile() { Write(bytes); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { std::filesystem::remove(m_Path); }

    [[nodiscard]] const char* Path() const { return m_Path.c_str(); }
    [[nodiscard]] bool Exists() const { return std::filesystem::exists(m_Path); }
    [[nodiscard]] std::string Bytes() const {
        std::ifstream stream(m_Path, std::ios::binary);
        std::ostringstream bytes;
        bytes << stream.rdbuf();
        return bytes.str();
    }
    void Write(const std::string& bytes) const {
        std::ofstream stream(m_Path, std::ios::binary);
        stream << bytes;
        ASSERT_TRUE(stream.flush());
    }

private:
    std::string m_Path;
};
