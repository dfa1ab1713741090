// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/gdi_objects.h>
#include <marlin/platform/drawing/painting.h>
#include <marlin/platform/drawing/text_painting.h>
#include <marlin/platform/fonts/fonts.h>

#include <algorithm>
#include <limits>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

HFONT Sans() {
    return CreateFontA(100, 0, 0, 0, 400, 0, 0, 0, 0, OUT_TT_ONLY_PRECIS, 0, 0, 0, "Arial");
}

CPoint Mapped(HDC dc, POINT p) {
    EXPECT_NE(LPtoDP(dc, &p, 1), 0);
    return p;
}

// A case deletes all that it makes; only the fixture's own context is left.
class DeviceContext : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(PLATFORM::LiveDrawingObjects(), m_Live); }

    CClientDC m_DC{nullptr};
    const std::size_t m_Live = PLATFORM::LiveDrawingObjects();
};

TEST_F(DeviceContext, OnlyTheDisplayHasOne) {
    EXPECT_EQ(CreateDCA("WINSPOOL", nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(CreateDCA(nullptr, nullptr, nullptr, nullptr), nullptr);
    HDC dc = CreateDCA("display", nullptr, nullptr, nullptr);
    // 1920 and 1080 pixels at 96 dots an inch, in whole millimetres.
    EXPECT_EQ(GetDeviceCaps(dc, HORZSIZE), 508);
    EXPECT_EQ(GetDeviceCaps(dc, VERTSIZE), 286);
    EXPECT_NE(DeleteDC(dc), 0);
}

TEST_F(DeviceContext, WrongHandlesGiveTheFailureResults) {
    const CBrush brush(0);
    const RECT rect{0, 0, 1, 1};
    SIZE size{7, 7};
    HDC stale = CreateCompatibleDC(nullptr);
    DeleteDC(stale);
    // Null, stale and invented handles, and one of another kind.
    void* const none = nullptr;
    for (void* wrong : {none, HGDIOBJ(stale), HGDIOBJ(&stale), HGDIOBJ(HBRUSH(brush)),
                        HGDIOBJ(1ULL), HGDIOBJ(~0ULL), HGDIOBJ(0x0100000001FFFFULL)}) {
        const HDC dc = static_cast<HDC>(wrong);
        EXPECT_EQ(SelectObject(dc, brush), nullptr);
        EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), nullptr);
        EXPECT_EQ(GetDeviceCaps(dc, HORZRES), 0);
        EXPECT_EQ(SetMapMode(dc, MM_TEXT), 0);
        EXPECT_EQ(SetWindowExtEx(dc, 1, 1, nullptr), 0);
        EXPECT_EQ(GetTextExtentPoint32A(dc, "x", 1, &size), 0);
        EXPECT_EQ(GetOutlineTextMetricsA(dc, 0, nullptr), 0U);
        EXPECT_EQ(FillRect(dc, &rect, brush), 0);
        EXPECT_EQ(TextOutA(dc, 0, 0, "x", 1), 0);
        EXPECT_EQ(SetTextAlign(dc, TA_LEFT), GDI_ERROR);
        EXPECT_EQ(SetTextColor(dc, 0), CLR_INVALID);
        EXPECT_EQ(GetPixel(dc, 0, 0), CLR_INVALID);
        EXPECT_EQ(CreateCompatibleBitmap(dc, 1, 1), nullptr);
        EXPECT_EQ(CDC::FromHandle(dc), nullptr);
        EXPECT_EQ(DeleteDC(dc), 0);
    }
    EXPECT_EQ(size.cx, 7);
}

TEST_F(DeviceContext, WrongObjectsAreNotSelectedAndThoseInStockStay) {
    HFONT stale = Sans();
    DeleteObject(stale);
    // The slot of a deleted font serves another one under another handle.
    HFONT next = Sans();
    void* const none = nullptr;
    for (void* wrong : {none, HGDIOBJ(stale), HGDIOBJ(HDC(m_DC)), HGDIOBJ(&m_DC)}) {
        EXPECT_EQ(SelectObject(m_DC, wrong), nullptr);
        EXPECT_EQ(DeleteObject(wrong), 0);
        EXPECT_EQ(CGdiObject::FromHandle(wrong), nullptr);
    }
    EXPECT_EQ(GetCurrentObject(m_DC, OBJ_FONT), GetStockObject(SYSTEM_FONT));
    EXPECT_NE(DeleteObject(next), 0);
    for (const int index : {WHITE_BRUSH, NULL_BRUSH, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        const HGDIOBJ object = GetStockObject(index);
        EXPECT_NE(DeleteObject(object), 0) << index;
        EXPECT_EQ(GetStockObject(index), object);
        EXPECT_NE(CGdiObject::FromHandle(object), nullptr) << index;
    }
    for (const int index : {-1, 7, 15, 18, 1000}) {
        EXPECT_EQ(GetStockObject(index), nullptr) << index;
    }
}

TEST_F(DeviceContext, SelectingGivesTheObjectBefore) {
    HFONT font = Sans();
    HBRUSH brush = CreateSolidBrush(0x123456);
    EXPECT_EQ(SelectObject(m_DC, font), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(SelectObject(m_DC, brush), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(SelectObject(m_DC, GetStockObject(BLACK_BRUSH)), brush);
    EXPECT_EQ(GetCurrentObject(m_DC, OBJ_FONT), font);
    DeleteObject(brush);
    SIZE size;
    EXPECT_NE(GetTextExtentPoint32A(m_DC, "x", 1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, "x", -1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, nullptr, 1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, "x", 1, nullptr), 0);
    EXPECT_NE(DeleteObject(font), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, "x", 1, &size), 0) << "deleted while selected";
}

TEST_F(DeviceContext, FixedModesMeasurePaper) {
    // 96 pixels an inch, so that many logical units to 960 pixels; y upwards.
    const std::pair<int, int> unitsOfTenInches[] = {{MM_LOMETRIC, 2540},
                                                    {MM_HIMETRIC, 25400},
                                                    {MM_LOENGLISH, 1000},
                                                    {MM_HIENGLISH, 10000},
                                                    {MM_TWIPS, 14400}};
    int before = MM_TEXT;
    for (const auto& [mode, units] : unitsOfTenInches) {
        EXPECT_EQ(m_DC.SetMapMode(mode), before);
        EXPECT_EQ(Mapped(m_DC, {units, units}), CPoint(960, -960)) << mode;
        POINT p{960, -960};
        EXPECT_NE(DPtoLP(m_DC, &p, 1), 0);
        EXPECT_EQ(CPoint(p), CPoint(units, units)) << mode;
        const CSize kept = m_DC.SetWindowExt(7, 7);
        EXPECT_EQ(m_DC.SetWindowExt(8, 8), kept) << mode;
        before = mode;
    }
    EXPECT_EQ(m_DC.SetMapMode(0), 0);
    EXPECT_EQ(m_DC.SetMapMode(9), 0);
    EXPECT_EQ(m_DC.GetMapMode(), MM_TWIPS);
}

TEST_F(DeviceContext, FreeModesMapByExtentsAndOrigins) {
    m_DC.SetMapMode(MM_ANISOTROPIC);
    m_DC.SetViewportExt(1000000, -1000000);
    // Points outside the device are cut.
    EXPECT_EQ(Mapped(m_DC, {2000000, 2000000}),
              CPoint(std::numeric_limits<int>::max(), std::numeric_limits<int>::min()));
    EXPECT_EQ(LPtoDP(m_DC, nullptr, 1), 0);
    m_DC.SetWindowExt(100, 50);
    m_DC.SetViewportExt(200, -200);
    m_DC.SetWindowOrg(10, 10);
    m_DC.SetViewportOrg(1000, 500);
    // (60 - 10) * 2 + 1000; (35 - 10) * -4 + 500.
    EXPECT_EQ(Mapped(m_DC, {60, 35}), CPoint(1100, 400));
    EXPECT_EQ(SetWindowExtEx(m_DC, 0, 5, nullptr), 0);
    EXPECT_EQ(m_DC.SetWindowExt(1, 1), CSize(100, 50));
    // The isotropic one keeps units square.
    m_DC.SetMapMode(MM_ISOTROPIC);
    m_DC.SetWindowExt(100, 100);
    m_DC.SetViewportExt(400, -200);
    EXPECT_EQ(m_DC.SetViewportExt(1, 1), CSize(200, -200));
}

TEST_F(DeviceContext, WrappersOwnWhatTheyHold) {
    const CBrush brush(0x112233);
    CFont font;
    LOGFONTA asked;
    EXPECT_TRUE(font.CreateFontIndirectA(&asked));
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), m_Live + 2);
    EXPECT_EQ(CDC::FromHandle(m_DC), &m_DC);
    EXPECT_EQ(CFont::FromHandle(font), &font);
    EXPECT_EQ(CBrush::FromHandle(reinterpret_cast<HBRUSH>(HFONT(font))), nullptr);
    const HGDIOBJ given = font.Detach();
    CGdiObject* madeUp = CGdiObject::FromHandle(given);
    ASSERT_NE(madeUp, nullptr);
    EXPECT_EQ(madeUp->GetSafeHandle(), given);
    EXPECT_NE(DeleteObject(given), 0);
}

TEST_F(DeviceContext, ABitmapOfASizeThatFitsIsHeldByOneMemoryContext) {
    const SIZE refused[] = {{0, 1}, {1, -1}, {32768, 1}, {1, 32768}, {32767, 32767}};
    for (const SIZE& size : refused) {
        EXPECT_EQ(CreateCompatibleBitmap(m_DC, size.cx, size.cy), nullptr) << size.cx;
    }
    CDC first;
    CDC second;
    ASSERT_TRUE(first.CreateCompatibleDC(nullptr));
    ASSERT_TRUE(second.CreateCompatibleDC(&first));
    CBitmap bitmap;
    BITMAP told;
    EXPECT_EQ(bitmap.GetBitmap(&told), 0);
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&first, 3, 2));
    EXPECT_NE(bitmap.GetBitmap(&told), 0);
    EXPECT_EQ(CSize(told.bmWidth, told.bmHeight), CSize(3, 2));
    const HGDIOBJ none = SelectObject(first, bitmap);
    EXPECT_NE(none, nullptr);
    EXPECT_EQ(SelectObject(second, bitmap), nullptr);
    EXPECT_EQ(DeleteObject(bitmap), 0);
    EXPECT_EQ(SelectObject(first, none), HGDIOBJ(HBITMAP(bitmap)));
    EXPECT_EQ(SelectObject(m_DC, bitmap), nullptr);
    EXPECT_NE(SelectObject(second, bitmap), nullptr);
    second.DeleteDC();
    EXPECT_NE(DeleteObject(bitmap), 0);
}

TEST_F(DeviceContext, ObjectsHaveHandlesOfTheirOwnUntilThereAreTooMany) {
    std::vector<HBRUSH> brushes{CreateSolidBrush(0)};
    while (brushes.back() && brushes.size() < 100000) {
        brushes.push_back(CreateSolidBrush(0));
    }
    EXPECT_EQ(brushes.back(), nullptr);
    brushes.pop_back();
    EXPECT_GT(brushes.size(), 60000U);
    std::ranges::sort(brushes);
    EXPECT_EQ(std::ranges::adjacent_find(brushes), brushes.end());
    for (HBRUSH brush : brushes) {
        EXPECT_NE(DeleteObject(brush), 0);
        EXPECT_EQ(DeleteObject(brush), 0);
    }
}

TEST_F(DeviceContext, ThreadsMakeAndDeleteObjectsAtATimeAndShareTheStockObjects) {
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int k = 0; k < 500; ++k) {
                HFONT font = Sans();
                CDC dc;
                dc.CreateCompatibleDC(nullptr);
                EXPECT_EQ(SelectObject(dc, font), GetStockObject(SYSTEM_FONT));
                CBitmap bitmap;
                bitmap.CreateCompatibleBitmap(&dc, 2, 2);
                CBitmap* const empty = dc.SelectObject(&bitmap);
                EXPECT_EQ(dc.SelectObject(empty), &bitmap);
                EXPECT_NE(DeleteObject(font), 0);
            }
        });
    }
}

}  // namespace
