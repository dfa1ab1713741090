// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_mapper.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

using Point = GTL::Point2D<double>;

GTL::Extents2D<double> Area(double minX, double minY, double maxX, double maxY) {
    GTL::Extents2D<double> area;
    area.Update(minX, minY);
    area.Update(maxX, maxY);
    return area;
}

GDIMapper Mapper(const GTL::Extents2D<double>& area, const CRect& device) {
    GDIMapper mapper;
    mapper.Create(area, device);
    return mapper;
}

TEST(GDIMapper, FitsTheAreaIntoTheRectangle) {
    const GDIMapper mapper = Mapper(Area(0, 0, 100, 50), CRect(0, 0, 200, 200));
    EXPECT_EQ(mapper.GetScale(), 0.5);
    EXPECT_EQ(mapper << Point(50, 25), CPoint(100, 100));
    EXPECT_EQ(mapper << Point(0, 25), CPoint(0, 100));
    EXPECT_EQ(mapper << Point(50, 50), CPoint(100, 50));
    EXPECT_EQ(mapper.PixelDist(1.2), 2);
    EXPECT_EQ(mapper.WorldDist(3), 1.5);
    const Point back = mapper << CPoint(100, 100);
    EXPECT_EQ(back.x, 50.25);
    EXPECT_EQ(back.y, 24.75);
}

TEST(GDIMapper, TakesTheLargerRatio) {
    EXPECT_EQ(Mapper(Area(0, 0, 100, 300), CRect(0, 0, 100, 100)).GetScale(), 3.0);
    EXPECT_EQ(Mapper(Area(0, 0, 300, 100), CRect(10, 10, 110, 110)).GetScale(), 3.0);
}

TEST(GDIMapper, ATopOffZeroLiftsTheCenterTwiceAsFar) {
    const GDIMapper mapper = Mapper(Area(0, 0, 100, 100), CRect(20, 30, 120, 130));
    // H - (top + bottom) / 2 = 100 - 80; the rectangle's own centre is at 80.
    EXPECT_EQ(mapper << Point(50, 50), CPoint(70, 20));
}

TEST(GDIMapper, CutsTowardsZero) {
    const GDIMapper mapper = Mapper(Area(-10, -10, 10, 10), CRect(-10, -10, 10, 10));
    EXPECT_EQ(mapper << Point(2.9, 2.9), CPoint(2, 18));
    EXPECT_EQ(mapper << Point(-2.9, -2.9), CPoint(-2, 22));
}

TEST(GDIMapper, HalvesTheDeviceCenterTowardsZero) {
    const GDIMapper mapper = Mapper(Area(0, 0, 10, 10), CRect(-6, 0, 1, 7));
    EXPECT_EQ(mapper << Point(5, 5), CPoint(-2, 4));
}

// Back in the world stands half a unit right of the pixel's left edge, and half a unit below its
// lower one.
TEST(GDIMapper, ComesBackNearby) {
    const GDIMapper mapper = Mapper(Area(-500, 20, 1234, 777), CRect(0, 0, 640, 480));
    const double unit = mapper.GetScale();
    for (double x = -500; x <= 1234; x += 97.3) {
        for (double y = 20; y <= 777; y += 55.1) {
            const Point back = mapper << (mapper << Point(x, y));
            EXPECT_LE(std::fabs(back.x - x), 0.5 * unit);
            EXPECT_GE(y - back.y, 0.5 * unit - 1e-9);
            EXPECT_LE(y - back.y, 1.5 * unit);
        }
    }
}

TEST(GDIMapper, AnEmptyAreaKeepsItsStoredCenter) {
    const GDIMapper mapper = Mapper({}, CRect(0, 0, 10, 10));
    EXPECT_EQ(mapper.GetScale(), 0.0);
    const Point center = mapper << CPoint(7, 7);
    EXPECT_EQ(center.x, 0.5);
    EXPECT_EQ(center.y, 0.5);
}

TEST(GDIMapper, MeaninglessMappingsDoNoHarm) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const int most = std::numeric_limits<int>::max();
    const GDIMapper none;
    EXPECT_EQ(none << Point(0, 0), CPoint(0, 0));
    const GDIMapper flat = Mapper(Area(0, 0, 1, 1), CRect(5, 5, 5, 5));
    EXPECT_EQ((flat << Point(nan, nan)).x, 0);
    const GDIMapper huge = Mapper(Area(0, 0, 1, 1), CRect(-most - 1, -most - 1, most, most));
    EXPECT_EQ((huge << Point(1e300, -1e300)).x, most);
}

}  // namespace
