// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/kernel/detail/test_levers.h>

#include <gtest/gtest.h>

namespace {

// What another object's constructor finds before main.
const double factorOfStatic = GDIScaleFactor::Get();

bool Is(double factor, unsigned int most) {
    return GDIScaleFactor::Get() == factor && GDIScaleFactor::MaxCoord() == most &&
           factorOfStatic == factor;
}

// A program that is started anew loads the library anew.
TEST(GDIScaleFactor, IsSmallOnAPlatformOfNarrowCoordinates) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    PLATFORM::detail::SetPlatformId(1);
    EXPECT_EXIT(std::exit(Is(20.0, 32767U) ? 0 : 1), testing::ExitedWithCode(0), "");
    PLATFORM::detail::SetPlatformId(2);
    EXPECT_TRUE(Is(1000.0, 2147483647U));
}

}  // namespace
