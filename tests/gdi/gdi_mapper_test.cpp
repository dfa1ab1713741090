// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_mapper.h>

#include <limits>

#include <gtest/gtest.h>

namespace {

using Point = GTL::Point2D<double>;

GDIMapper Mapper(const Point& min, const Point& max, const CRect& device) {
    GTL::Extents2D<double> area;
    area.Update(min);
    area.Update(max);
    GDIMapper mapper;
    mapper.Create(area, device);
    return mapper;
}

TEST(GDIMapper, FitsTheAreaIntoTheRectangleAndComesBackToMiddlesOfPixels) {
    struct Case {
        const char* Name;
        Point Min;
        Point Max;
        CRect Device;
        Point World;
        CPoint Pixel;
        Point Back;
    };
    // Back is half a unit right of the pixel's left edge, and half a unit below its lower one.
    const Case cases[] = {
        {"centre", {0, 0}, {100, 50}, {0, 0, 200, 200}, {50, 25}, {100, 100}, {50.25, 24.75}},
        {"left edge", {0, 0}, {100, 50}, {0, 0, 200, 200}, {0, 25}, {0, 100}, {0.25, 24.75}},
        {"upper edge", {0, 0}, {100, 50}, {0, 0, 200, 200}, {50, 50}, {100, 50}, {50.25, 49.75}},
        {"by height", {}, {100, 300}, {0, 0, 100, 100}, {50, 150}, {50, 50}, {51.5, 148.5}},
        {"by width", {}, {300, 100}, {10, 10, 110, 110}, {150, 50}, {60, 40}, {151.5, 48.5}},
        // H - (top + bottom) / 2 = 100 - 80; the rectangle's own centre is at 80.
        {"top off 0", {}, {100, 100}, {20, 30, 120, 130}, {50, 50}, {70, 20}, {50.5, 49.5}},
        {"cut to 0", {-10, -10}, {10, 10}, {-10, -10, 10, 10}, {2.9, 2.9}, {2, 18}, {2.5, 1.5}},
        {"below 0", {-10, -10}, {10, 10}, {-10, -10, 10, 10}, {-2.9, -2.9}, {-2, 22}, {-1.5, -2.5}},
        {"a half", {}, {10, 10}, {-6, 0, 1, 7}, {5, 5}, {-2, 4}, {40.0 / 7, 30.0 / 7}},
    };
    for (const Case& c : cases) {
        const GDIMapper mapper = Mapper(c.Min, c.Max, c.Device);
        EXPECT_EQ(mapper << c.World, c.Pixel) << c.Name;
        const Point back = mapper << c.Pixel;
        EXPECT_DOUBLE_EQ(back.x, c.Back.x) << c.Name;
        EXPECT_DOUBLE_EQ(back.y, c.Back.y) << c.Name;
    }
    // Pixels left of 0 come back one further right, those above the lower edge one further down.
    const GDIMapper mapper = Mapper({0, 0}, {100, 50}, {0, 0, 200, 200});
    EXPECT_EQ(mapper << (mapper << CPoint(7, 9)), CPoint(7, 10));
    EXPECT_EQ(mapper << (mapper << CPoint(-7, 230)), CPoint(-6, 230));
}

TEST(GDIMapper, MeasuresDistances) {
    const GDIMapper mapper = Mapper({0, 0}, {100, 50}, {0, 0, 200, 200});
    EXPECT_EQ(mapper.GetScale(), 0.5);
    EXPECT_EQ(mapper.PixelDist(1.2), 2);
    EXPECT_EQ(mapper.PixelDist(1.25), 3);
    EXPECT_EQ(mapper.PixelDist(-1.2), -1);
    EXPECT_EQ(mapper.WorldDist(3), 1.5);
}

TEST(GDIMapper, MeaninglessMappingsDoNoHarm) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const int most = std::numeric_limits<int>::max();
    GDIMapper mapper;
    EXPECT_EQ(mapper << Point(0, 0), CPoint(0, 0));
    EXPECT_EQ((Mapper({0, 0}, {1, 1}, {5, 5, 5, 5}) << Point(nan, nan)).x, 0);
    const GDIMapper huge = Mapper({0, 0}, {1, 1}, {-most - 1, -most - 1, most, most});
    EXPECT_EQ((huge << Point(1e300, -1e300)).x, most);
    const GDIMapper plain = Mapper({-10, -10}, {10, 10}, {-10, -10, 10, 10});
    for (const int edge : {most, -most, -most - 1}) {
        EXPECT_EQ((plain << Point(edge, 0)).x, edge);
    }
    EXPECT_EQ((plain << Point(-1e300, 0)).x, -most - 1);
    mapper.Create({}, {0, 0, 10, 10});
    const Point keptCenter = mapper << CPoint(7, 7);
    EXPECT_EQ(keptCenter.x, 0.5);
    EXPECT_EQ(keptCenter.y, 0.5);
}

}  // namespace
