// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_selector.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/c_font.h>

#include <memory>
#include <utility>

#include <gtest/gtest.h>

namespace {

// What goes too soon is refused, and so are pointers that are no handles.
template <class Object>
concept Selectable = requires(CDC* dc, Object&& object) {
    GDISelector(dc, std::forward<Object>(object));
};
static_assert(Selectable<CBrush&> && Selectable<const CBrush&> && Selectable<void*> &&
              Selectable<std::nullptr_t>);
static_assert(!Selectable<CBrush> && !Selectable<CBrush*> && !Selectable<const CBrush*> &&
              !Selectable<CDC*>);

class GDISelectorOnDisplay : public testing::Test {
protected:
    // The selected brush, which is taken out to look at it and put back.
    HGDIOBJ Brush() {
        CGdiObject* const selected = m_DC.SelectStockObject(WHITE_BRUSH);
        m_DC.SelectObject(selected);
        return selected->m_hObject;
    }

    CBrush m_Red{0x0000FF};
    CClientDC m_DC{nullptr};
};

TEST_F(GDISelectorOnDisplay, PutsTheObjectBeforeBack) {
    const CBrush green(0x00FF00);
    {
        const GDISelector outer(&m_DC, m_Red);
        EXPECT_TRUE(!outer);
        {
            const GDISelector inner(&m_DC, green.m_hObject);
            EXPECT_EQ(Brush(), green.m_hObject);
            EXPECT_TRUE(!inner);
        }
        EXPECT_EQ(Brush(), m_Red.m_hObject);
    }
    EXPECT_EQ(Brush(), GetStockObject(WHITE_BRUSH));
}

TEST_F(GDISelectorOnDisplay, PutsNothingBackForAnObjectThatIsGone) {
    auto before = std::make_unique<CBrush>(0x123456);
    m_DC.SelectObject(before.get());
    std::unique_ptr<CBrush> next;
    {
        const GDISelector selector(&m_DC, m_Red);
        before.reset();
        next = std::make_unique<CBrush>(0x654321);  // in the place of the one before
    }
    EXPECT_EQ(Brush(), m_Red.m_hObject);
}

TEST_F(GDISelectorOnDisplay, SelectsNothingWithoutObjectOrContextAndLeavesStockObjects) {
    CFont none;
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
