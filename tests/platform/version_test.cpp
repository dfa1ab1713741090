// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/version.h>

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

unsigned long PlatformAskedFor(const char* id) {
    ::setenv("MARLIN_PLATFORM_ID", id, 1);
    OSVERSIONINFOA information;
    EXPECT_EQ(GetVersionExA(&information), 1);
    ::unsetenv("MARLIN_PLATFORM_ID");
    return information.dwPlatformId;
}

TEST(Version, ThePlatformIsTheSecondUnlessAnotherIsAskedFor) {
    OSVERSIONINFOA information;
    EXPECT_EQ(GetVersionExA(&information), 1);
    EXPECT_EQ(information.dwPlatformId, 2U);
    EXPECT_EQ(PlatformAskedFor("1"), 1U);
    for (const char* const noNumber : {"", "x", "1x", "-1"}) {
        EXPECT_EQ(PlatformAskedFor(noNumber), 2U) << noNumber;
    }
}

TEST(Version, AStructureOfAnotherSizeIsNotFilled) {
    OSVERSIONINFOA information;
    information.dwOSVersionInfoSize = 1;
    information.dwPlatformId = 77;
    EXPECT_EQ(GetVersionExA(&information), 0);
    EXPECT_EQ(information.dwPlatformId, 77U);
    EXPECT_EQ(GetVersionExA(nullptr), 0);
}

}  // namespace
