// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <gtest/gtest.h>

namespace {

class GDISelectorOnDisplay : public testing::Test {
protected:
    GDISelectorOnDisplay() { m_DC.CreateDCA("DISPLAY", nullptr, nullptr, nullptr); }
    [[nodiscard]] HGDIOBJ Brush() const { return GetCurrentObject(m_DC, OBJ_BRUSH); }

    CBrush m_Red{0x0000FF};
    CDC m_DC;
};

TEST_F(GDISelectorOnDisplay, PutsTheObjectBeforeBack) {
    const HBRUSH raw = CreateSolidBrush(0x00FF00);
    {
        const GDISelector outer(&m_DC, m_Red);
        EXPECT_TRUE(!outer);
        {
            const GDISelector inner(&m_DC, raw);
            EXPECT_EQ(Brush(), raw);
            EXPECT_TRUE(!inner);
        }
        EXPECT_EQ(Brush(), m_Red.m_hObject);
    }
    EXPECT_EQ(Brush(), GetStockObject(WHITE_BRUSH));
    EXPECT_NE(DeleteObject(raw), 0);
}

TEST_F(GDISelectorOnDisplay, SelectsNothingWithoutObjectOrContextAndLeavesStockObjects) {
    CBrush none;
    EXPECT_FALSE(!GDISelector(&m_DC, none));
    EXPECT_FALSE(!GDISelector(&m_DC, nullptr));
    EXPECT_FALSE(!GDISelector(&m_DC, static_cast<void*>(&none)));
    EXPECT_FALSE(!GDISelector(nullptr, m_Red));
    EXPECT_FALSE(!GDISelector(nullptr, BLACK_BRUSH));
    EXPECT_EQ(Brush(), GetStockObject(WHITE_BRUSH));
    EXPECT_FALSE(!GDISelector(&m_DC, BLACK_BRUSH));
    EXPECT_EQ(Brush(), GetStockObject(BLACK_BRUSH));
}

}  // namespace
