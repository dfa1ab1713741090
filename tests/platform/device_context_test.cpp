// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/bitmaps.h>
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/fonts.h>
#include <marlin/platform/drawing/gdi_objects.h>
#include <marlin/platform/drawing/painting.h>

#include <cstdint>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

HDC Display() {
    return CreateDCA("display", nullptr, nullptr, nullptr);
}

HFONT Sans() {
    return CreateFontA(100, 0, 0, 0, 400, 0, 0, 0, 0, OUT_TT_ONLY_PRECIS, 0, 0, 0, "Arial");
}

// Null, invented and stale handles, and one of each other kind.
std::vector<void*> WrongContexts() {
    HDC stale = Display();
    DeleteDC(stale);
    return {nullptr,
            stale,
            reinterpret_cast<void*>(std::uintptr_t{1}),
            reinterpret_cast<void*>(~std::uintptr_t{0}),
            &stale,
            GetStockObject(BLACK_BRUSH),
            reinterpret_cast<void*>(std::uintptr_t{0x0100000001FFFF})};
}

TEST(DeviceContext, OnlyTheDisplayHasOne) {
    EXPECT_EQ(CreateDCA("WINSPOOL", nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(CreateDCA(nullptr, nullptr, nullptr, nullptr), nullptr);
    HDC dc = Display();
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 96);
    EXPECT_EQ(GetDeviceCaps(dc, HORZRES), 1920);
    EXPECT_EQ(GetDeviceCaps(dc, VERTRES), 1080);
    // 1920 and 1080 pixels at 96 dots an inch, in whole millimetres.
    EXPECT_EQ(GetDeviceCaps(dc, HORZSIZE), 508);
    EXPECT_EQ(GetDeviceCaps(dc, VERTSIZE), 286);
    EXPECT_NE(DeleteDC(dc), 0);
    EXPECT_EQ(DeleteDC(dc), 0);
}

TEST(DeviceContext, WrongHandlesGiveTheFailureResults) {
    HFONT font = Sans();
    const RECT rect{0, 0, 1, 1};
    SIZE size{7, 7};
    for (void* wrong : WrongContexts()) {
        const HDC dc = static_cast<HDC>(wrong);
        EXPECT_EQ(SelectObject(dc, font), nullptr);
        EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), nullptr);
        EXPECT_EQ(GetDeviceCaps(dc, HORZRES), 0);
        EXPECT_EQ(SetMapMode(dc, MM_TEXT), 0);
        EXPECT_EQ(SetWindowExtEx(dc, 1, 1, nullptr), 0);
        EXPECT_EQ(GetTextExtentPoint32A(dc, "x", 1, &size), 0);
        EXPECT_EQ(GetOutlineTextMetricsA(dc, 0, nullptr), 0U);
        EXPECT_EQ(FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))), 0);
        EXPECT_EQ(TextOutA(dc, 0, 0, "x", 1), 0);
        EXPECT_EQ(SetTextAlign(dc, TA_LEFT), GDI_ERROR);
        EXPECT_EQ(SetTextColor(dc, 0), CLR_INVALID);
        EXPECT_EQ(GetPixel(dc, 0, 0), CLR_INVALID);
        EXPECT_EQ(CreateCompatibleBitmap(dc, 1, 1), nullptr);
        EXPECT_EQ(CDC::FromHandle(dc), nullptr);
        EXPECT_EQ(DeleteDC(dc), 0);
    }
    EXPECT_EQ(size.cx, 7);
    EXPECT_NE(DeleteObject(font), 0);
}

TEST(DeviceContext, WrongObjectsAreNotSelectedOrDeleted) {
    HDC dc = Display();
    const HGDIOBJ before = GetCurrentObject(dc, OBJ_FONT);
    HFONT stale = Sans();
    DeleteObject(stale);
    for (void* wrong : {static_cast<void*>(nullptr), static_cast<void*>(stale),
                        static_cast<void*>(dc), static_cast<void*>(&dc)}) {
        EXPECT_EQ(SelectObject(dc, wrong), nullptr);
        EXPECT_EQ(DeleteObject(wrong), 0);
        EXPECT_EQ(CGdiObject::FromHandle(wrong), nullptr);
    }
    EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), before);
    // The slot of a deleted font serves another one under another handle.
    HFONT next = Sans();
    EXPECT_NE(next, stale);
    EXPECT_EQ(SelectObject(dc, stale), nullptr);
    DeleteObject(next);
    DeleteDC(dc);
}

TEST(DeviceContext, AFontDeletedWhileSelectedMeasuresNothing) {
    HDC dc = Display();
    HFONT font = Sans();
    SelectObject(dc, font);
    SIZE size;
    EXPECT_NE(GetTextExtentPoint32A(dc, "x", 1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(dc, "x", -1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(dc, nullptr, 1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(dc, "x", 1, nullptr), 0);
    EXPECT_NE(DeleteObject(font), 0);
    EXPECT_EQ(GetTextExtentPoint32A(dc, "x", 1, &size), 0);
    DeleteDC(dc);
}

TEST(DeviceContext, SelectingGivesTheObjectBefore) {
    HDC dc = Display();
    HFONT font = Sans();
    HBRUSH brush = CreateSolidBrush(0x123456);
    EXPECT_EQ(SelectObject(dc, font), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(SelectObject(dc, brush), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), font);
    EXPECT_EQ(SelectObject(dc, GetStockObject(SYSTEM_FONT)), font);
    EXPECT_EQ(SelectObject(dc, GetStockObject(BLACK_BRUSH)), brush);
    DeleteDC(dc);
    DeleteObject(font);
    DeleteObject(brush);
}

TEST(DeviceContext, StockObjectsStay) {
    const std::size_t before = PLATFORM::LiveDrawingObjects();
    for (const int index : {WHITE_BRUSH, NULL_BRUSH, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        const HGDIOBJ object = GetStockObject(index);
        ASSERT_NE(object, nullptr);
        EXPECT_NE(DeleteObject(object), 0);
        EXPECT_EQ(GetStockObject(index), object);
    }
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before);
    for (const int index : {-1, 7, 15, 18, 1000}) {
        EXPECT_EQ(GetStockObject(index), nullptr);
    }
}

TEST(DeviceContext, FixedModesMeasurePaper) {
    // 96 pixels an inch, so that many logical units to 960 pixels; y upwards.
    const std::pair<int, int> unitsOfTenInches[] = {{MM_LOMETRIC, 2540},
                                                    {MM_HIMETRIC, 25400},
                                                    {MM_LOENGLISH, 1000},
                                                    {MM_HIENGLISH, 10000},
                                                    {MM_TWIPS, 14400}};
    HDC dc = Display();
    EXPECT_EQ(GetMapMode(dc), MM_TEXT);
    int before = MM_TEXT;
    for (const auto& [mode, units] : unitsOfTenInches) {
        EXPECT_EQ(SetMapMode(dc, mode), before);
        POINT p{units, units};
        EXPECT_NE(LPtoDP(dc, &p, 1), 0);
        EXPECT_EQ(CPoint(p), CPoint(960, -960));
        EXPECT_NE(DPtoLP(dc, &p, 1), 0);
        EXPECT_EQ(CPoint(p), CPoint(units, units));
        SIZE kept;
        EXPECT_NE(SetWindowExtEx(dc, 7, 7, &kept), 0);
        SIZE now;
        GetWindowExtEx(dc, &now);
        EXPECT_EQ(CSize(kept), CSize(now));
        before = mode;
    }
    EXPECT_EQ(SetMapMode(dc, 0), 0);
    EXPECT_EQ(SetMapMode(dc, 9), 0);
    EXPECT_EQ(GetMapMode(dc), MM_TWIPS);
    DeleteDC(dc);
}

TEST(DeviceContext, FreeModesMapByExtentsAndOrigins) {
    CDC dc;
    ASSERT_TRUE(dc.CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 50);
    dc.SetViewportExt(200, -200);
    dc.SetWindowOrg(10, 10);
    dc.SetViewportOrg(1000, 500);
    // (60 - 10) * 2 + 1000; (35 - 10) * -4 + 500.
    POINT p{60, 35};
    LPtoDP(dc, &p, 1);
    EXPECT_EQ(CPoint(p), CPoint(1100, 400));
    EXPECT_EQ(SetWindowExtEx(dc, 0, 5, nullptr), 0);
    EXPECT_EQ(dc.SetWindowExt(1, 1), CSize(100, 50));
}

TEST(DeviceContext, IsotropicModeKeepsUnitsSquare) {
    HDC dc = Display();
    SetMapMode(dc, MM_ISOTROPIC);
    SetWindowExtEx(dc, 100, 100, nullptr);
    SetViewportExtEx(dc, 400, -200, nullptr);
    SIZE viewport;
    GetViewportExtEx(dc, &viewport);
    EXPECT_EQ(CSize(viewport), CSize(200, -200));
    DeleteDC(dc);
}

TEST(DeviceContext, PointsOutsideTheDeviceAreCut) {
    HDC dc = Display();
    SetMapMode(dc, MM_ANISOTROPIC);
    SetViewportExtEx(dc, 1000000, -1000000, nullptr);
    POINT p{2000000, 2000000};
    LPtoDP(dc, &p, 1);
    EXPECT_EQ(p.x, std::numeric_limits<int>::max());
    EXPECT_EQ(p.y, std::numeric_limits<int>::min());
    EXPECT_EQ(LPtoDP(dc, nullptr, 1), 0);
    DeleteDC(dc);
}

TEST(DeviceContext, WrappersOwnWhatTheyHold) {
    const std::size_t before = PLATFORM::LiveDrawingObjects();
    {
        CClientDC dc(nullptr);
        CBrush brush(0x112233);
        CFont font;
        LOGFONTA asked;
        asked.lfHeight = 30;
        EXPECT_TRUE(font.CreateFontIndirectA(&asked));
        EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before + 3);
        EXPECT_EQ(CDC::FromHandle(dc), &dc);
        EXPECT_EQ(CFont::FromHandle(font), &font);
        EXPECT_EQ(CBrush::FromHandle(reinterpret_cast<HBRUSH>(HFONT(font))), nullptr);
        const HFONT given = static_cast<HFONT>(font.Detach());
        CGdiObject* madeUp = CGdiObject::FromHandle(given);
        ASSERT_NE(madeUp, nullptr);
        EXPECT_EQ(madeUp->GetSafeHandle(), given);
        EXPECT_NE(DeleteObject(given), 0);
    }
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before);
}

TEST(DeviceContext, ABitmapIsHeldByOneMemoryContext) {
    CDC first;
    CDC second;
    CDC display;
    ASSERT_TRUE(first.CreateCompatibleDC(nullptr));
    ASSERT_TRUE(second.CreateCompatibleDC(&first));
    ASSERT_TRUE(display.CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    const HBITMAP bitmap = CreateCompatibleBitmap(first, 4, 4);
    ASSERT_NE(bitmap, nullptr);
    const HGDIOBJ none = SelectObject(first, bitmap);
    EXPECT_NE(none, nullptr);
    EXPECT_EQ(SelectObject(second, bitmap), nullptr);
    EXPECT_EQ(DeleteObject(bitmap), 0);
    EXPECT_EQ(SelectObject(first, none), bitmap);
    EXPECT_EQ(SelectObject(display, bitmap), nullptr);
    EXPECT_NE(SelectObject(second, bitmap), nullptr);
    second.DeleteDC();
    EXPECT_NE(DeleteObject(bitmap), 0);
}

TEST(DeviceContext, BitmapsHaveSizesThatFit) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const SIZE refused[] = {{0, 1}, {1, -1}, {32768, 1}, {1, 32768}, {32767, 32767}};
    for (const SIZE& size : refused) {
        EXPECT_EQ(CreateCompatibleBitmap(dc, size.cx, size.cy), nullptr);
    }
    CBitmap bitmap;
    BITMAP told;
    EXPECT_EQ(bitmap.GetBitmap(&told), 0);
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&dc, 3, 2));
    EXPECT_NE(bitmap.GetBitmap(&told), 0);
    EXPECT_EQ(CSize(told.bmWidth, told.bmHeight), CSize(3, 2));
}

TEST(DeviceContext, ManyObjectsAtATimeHaveHandlesOfTheirOwn) {
    std::vector<HBRUSH> brushes;
    for (COLORREF i = 0; i < 1000; ++i) {
        brushes.push_back(CreateSolidBrush(i));
    }
    std::sort(brushes.begin(), brushes.end());
    EXPECT_EQ(std::unique(brushes.begin(), brushes.end()), brushes.end());
    for (HBRUSH brush : brushes) {
        EXPECT_NE(DeleteObject(brush), 0);
        EXPECT_EQ(DeleteObject(brush), 0);
    }
}

TEST(DeviceContext, TooManyObjectsAreRefused) {
    std::vector<HBRUSH> brushes;
    HBRUSH brush = CreateSolidBrush(0);
    while (brush && brushes.size() < 100000) {
        brushes.push_back(brush);
        brush = CreateSolidBrush(0);
    }
    EXPECT_EQ(brush, nullptr);
    EXPECT_GT(brushes.size(), 60000U);
    for (HBRUSH made : brushes) {
        EXPECT_NE(DeleteObject(made), 0);
    }
}

TEST(DeviceContext, ThreadsThatEndLeaveRoomForOthers) {
    const std::size_t before = PLATFORM::LiveDrawingObjects();
    for (int round = 0; round < 50; ++round) {
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([] {
                for (int k = 0; k < 50; ++k) {
                    HDC dc = Display();
                    HFONT font = Sans();
                    EXPECT_NE(SelectObject(dc, font), nullptr);
                    EXPECT_NE(DeleteDC(dc), 0);
                    EXPECT_NE(DeleteObject(font), 0);
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    EXPECT_EQ(PLATFORM::LiveDrawingObjects(), before);
}

}  // namespace
