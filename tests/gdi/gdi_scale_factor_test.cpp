// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/kernel/version.h>

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

// What another object's constructor finds before main.
const double factorOfStatic = GDIScaleFactor::Get();

TEST(GDIScaleFactor, IsThatOfWideCoordinates) {
    EXPECT_EQ(GDIScaleFactor::Get(), 1000.0);
    EXPECT_EQ(GDIScaleFactor::MaxCoord(), 2147483647U);
    EXPECT_EQ(factorOfStatic, 1000.0);
}

// A program that is started anew loads the library anew.
TEST(GDIScaleFactor, IsSmallOnAPlatformOfNarrowCoordinates) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ::setenv("MARLIN_PLATFORM_ID", "1", 1);
    EXPECT_EXIT(std::exit(GDIScaleFactor::Get() == 20.0 && GDIScaleFactor::MaxCoord() == 32767U &&
                                  factorOfStatic == 20.0
                              ? 0
                              : 1),
                testing::ExitedWithCode(0), "");
    ::unsetenv("MARLIN_PLATFORM_ID");
}

TEST(Version, TellsThePlatform) {
    OSVERSIONINFOA version;
    EXPECT_NE(GetVersionExA(&version), 0);
    EXPECT_EQ(version.dwPlatformId, VER_PLATFORM_WIN32_NT);
    for (const char* noNumber : {"", "one", "1x", "-1", "99999999999"}) {
        ::setenv("MARLIN_PLATFORM_ID", noNumber, 1);
        EXPECT_NE(GetVersionExA(&version), 0);
        EXPECT_EQ(version.dwPlatformId, VER_PLATFORM_WIN32_NT) << noNumber;
    }
    ::unsetenv("MARLIN_PLATFORM_ID");
}

TEST(Version, RefusesAStructureOfAnotherSize) {
    OSVERSIONINFOA version;
    version.dwOSVersionInfoSize = 4;
    version.dwPlatformId = 77;
    EXPECT_EQ(GetVersionExA(&version), 0);
    EXPECT_EQ(version.dwPlatformId, 77U);
    EXPECT_EQ(GetVersionExA(nullptr), 0);
}

}  // namespace
