// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/process.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <support/temporary_folder.h>

namespace {

TEST(Process, AFileIsNoTerminal) {
    std::FILE* const file = std::tmpfile();
    EXPECT_FALSE(PLATFORM::IsTerminal(file));
    std::fclose(file);
}

TEST(Process, TheProgramIsInItsFolder) {
    EXPECT_TRUE(PLATFORM::IsProgram(PLATFORM::ProgramFolder() + "/test_platform"));
    EXPECT_FALSE(PLATFORM::IsProgram(PLATFORM::ProgramFolder() + "/none"));
}

TEST(Process, AnotherProgramTakesItsPlaceWithTheArguments) {
    const auto exits = [](const char* code) {
        std::exit(PLATFORM::RunInstead("sh", {"-c", "exit $0", code}));
    };
    EXPECT_EXIT(exits("7"), testing::ExitedWithCode(7), "");
    const TemporaryFolder folder;
    EXPECT_EQ(PLATFORM::RunInstead(folder.File("none"), {}), ENOENT);
    EXPECT_EQ(PLATFORM::RunInstead(folder.Write("text", "no program"), {}), EACCES);
}

}  // namespace
