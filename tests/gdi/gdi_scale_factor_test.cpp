// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>

#include <gtest/gtest.h>

namespace {

// Read by another object's constructor, before main.
const double factorOfStatic = GDIScaleFactor::Get();

TEST(GDIScaleFactor, IsSetWhenTheLibraryIsLoaded) {
    EXPECT_EQ(factorOfStatic, 1000.0);
    EXPECT_EQ(GDIScaleFactor::Get(), 1000.0);
    EXPECT_EQ(GDIScaleFactor::MaxCoord(), 2147483647U);
}

}  // namespace
