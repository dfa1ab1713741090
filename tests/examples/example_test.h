// SPDX-License-Identifier: MIT
#pragma once

#include "gtest/gtest.h"
#include "support/temporary_folder.h"

/// Runs each example in an empty folder of its own, so that it may write files by bare names.
class Example : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(m_Folder.File("")); }
    void TearDown() override { std::filesystem::current_path(m_Before); }

private:
    std::filesystem::path m_Before = std::filesystem::current_path();
    TemporaryFolder m_Folder;
};
