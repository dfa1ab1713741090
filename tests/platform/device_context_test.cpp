// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/fonts/fonts.h>

#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

// A context of the display and what is selected in it when a test looks.
class DeviceContext : public testing::Test {
protected:
    static void MakeSans(CFont& font) {
        EXPECT_TRUE(font.CreateFontA(100, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET,
                                     OUT_TT_ONLY_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY,
                                     DEFAULT_PITCH, "Arial"));
    }
    HGDIOBJ Replace(HGDIOBJ object) {
        CGdiObject* const before = CDC::SelectGdiObject(m_DC, object);
        return before ? before->m_hObject : nullptr;
    }

    CClientDC m_DC{nullptr};
};

TEST_F(DeviceContext, OnlyTheDisplayHasOne) {
    CDC dc;
    EXPECT_FALSE(dc.CreateDCA("WINSPOOL", nullptr, nullptr, nullptr));
    EXPECT_FALSE(dc.CreateDCA(nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(dc.CreateDCA("display", nullptr, nullptr, nullptr));
    const HDC first = dc;
    EXPECT_FALSE(dc.CreateDCA(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(HDC(dc), first);
    EXPECT_TRUE(dc.CreateCompatibleDC(&dc));
    EXPECT_EQ(CDC::FromHandle(first), nullptr) << "ended by the one in its place";
    // 1920 and 1080 pixels at 96 dots an inch, in whole millimetres.
    EXPECT_EQ(dc.GetDeviceCaps(HORZSIZE), 508);
    EXPECT_EQ(dc.GetDeviceCaps(VERTSIZE), 286);
    EXPECT_EQ(dc.GetDeviceCaps(9), 0);
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_FALSE(dc.DeleteDC());
}

TEST_F(DeviceContext, WrongHandlesGiveTheFailureResults) {
    CBrush brush(0);
    CBitmap bitmap;
    const RECT rect{0, 0, 1, 1};
    SIZE size{7, 7};
    const HDC stale = [] {
        CDC ended;
        ended.CreateCompatibleDC(nullptr);
        return ended.m_hDC;
    }();
    // Null, stale and invented handles, and one of another kind.
    void* const none = nullptr;
    for (void* wrong : {none, HGDIOBJ(stale), HGDIOBJ(&rect), HGDIOBJ(brush), HGDIOBJ(1ULL),
                        HGDIOBJ(~0ULL), HGDIOBJ(0x0100000001FFFFULL)}) {
        CDC dc;
        dc.m_hDC = dc.m_hAttribDC = static_cast<HDC>(wrong);
        EXPECT_EQ(dc.SelectObject(&brush), nullptr);
        EXPECT_EQ(dc.GetDeviceCaps(HORZRES), 0);
        EXPECT_EQ(dc.SetMapMode(MM_TEXT), 0);
        EXPECT_EQ(dc.SetWindowExt(1, 1), CSize(0, 0));
        EXPECT_EQ(GetTextExtentPoint32A(dc, "x", 1, &size), 0);
        EXPECT_EQ(dc.GetOutlineTextMetricsA(0, nullptr), 0U);
        dc.FillRect(&rect, &brush);
        EXPECT_FALSE(dc.TextOut(0, 0, "x"));
        EXPECT_EQ(dc.SetTextAlign(TA_LEFT), GDI_ERROR);
        EXPECT_EQ(dc.SetTextColor(0), CLR_INVALID);
        EXPECT_EQ(dc.GetPixel(0, 0), CLR_INVALID);
        EXPECT_FALSE(bitmap.CreateCompatibleBitmap(&dc, 1, 1));
        EXPECT_EQ(CDC::FromHandle(dc), nullptr);
        EXPECT_FALSE(dc.DeleteDC());
    }
    EXPECT_EQ(size.cx, 7);
}

TEST_F(DeviceContext, WrongObjectsAreNotSelectedAndThoseInStockStay) {
    CFont font;
    MakeSans(font);
    const HGDIOBJ stale = font;
    EXPECT_TRUE(font.DeleteObject());
    EXPECT_FALSE(font.DeleteObject());
    // The slot of a deleted font serves another one under another handle.
    MakeSans(font);
    const HGDIOBJ replaced = font;
    MakeSans(font);
    void* const none = nullptr;
    for (void* wrong : {none, stale, replaced, HGDIOBJ(HDC(m_DC)), HGDIOBJ(&m_DC)}) {
        EXPECT_EQ(Replace(wrong), nullptr);
        EXPECT_EQ(CGdiObject::FromHandle(wrong), nullptr);
    }
    EXPECT_EQ(Replace(font), GetStockObject(SYSTEM_FONT));
    for (const int index : {WHITE_BRUSH, NULL_BRUSH, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        CGdiObject* const object = CGdiObject::FromHandle(GetStockObject(index));
        ASSERT_NE(object, nullptr) << index;
        EXPECT_FALSE(object->DeleteObject()) << index;
        EXPECT_NE(CGdiObject::FromHandle(GetStockObject(index)), nullptr) << index;
    }
    for (const int index : {-1, 7, 15, 18, 1000}) {
        EXPECT_EQ(GetStockObject(index), nullptr) << index;
    }
}

TEST_F(DeviceContext, SelectingGivesTheObjectBefore) {
    CFont font;
    MakeSans(font);
    CBrush brush(0x123456);
    EXPECT_EQ(Replace(font), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(Replace(brush), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(Replace(GetStockObject(BLACK_BRUSH)), brush.m_hObject);
    SIZE size;
    EXPECT_NE(GetTextExtentPoint32A(m_DC, "x", 1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, "x", -1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, nullptr, 1, &size), 0);
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, "x", 1, nullptr), 0);
    font.DeleteObject();
    EXPECT_EQ(GetTextExtentPoint32A(m_DC, "x", 1, &size), 0) << "deleted while selected";
}

TEST_F(DeviceContext, AnIsotropicMappingKeepsUnitsSquare) {
    EXPECT_EQ(m_DC.SetMapMode(MM_HIMETRIC), MM_TEXT);
    // 96 pixels an inch of 2540 hundredths of a millimetre, y upwards, not to be changed.
    EXPECT_EQ(m_DC.SetWindowExt(7, 7), CSize(2540, 2540));
    EXPECT_EQ(m_DC.SetViewportExt(8, 8), CSize(96, -96));
    EXPECT_EQ(m_DC.SetMapMode(2), 0);
    EXPECT_EQ(m_DC.SetMapMode(MM_ISOTROPIC), MM_HIMETRIC);
    EXPECT_EQ(m_DC.SetWindowExt(100, 100), CSize(254, 254));
    EXPECT_EQ(m_DC.SetWindowExt(0, 5), CSize(100, 100));
    m_DC.SetViewportExt(400, -200);
    EXPECT_EQ(m_DC.SetViewportExt(1, 1), CSize(200, -200));
}

TEST_F(DeviceContext, ABitmapOfASizeThatFitsGoesIntoMemoryContexts) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CBitmap bitmap;
    const SIZE refused[] = {{0, 1}, {1, -1}, {32768, 1}, {1, 32768}, {32767, 32767}};
    BITMAP told;
    EXPECT_EQ(bitmap.GetBitmap(&told), 0);
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&dc, 3, 2));
    for (const SIZE& size : refused) {
        EXPECT_FALSE(bitmap.CreateCompatibleBitmap(&dc, size.cx, size.cy)) << size.cx;
    }
    EXPECT_NE(bitmap.GetBitmap(&told), 0);
    EXPECT_EQ(CSize(told.bmWidth, told.bmHeight), CSize(3, 2));
    EXPECT_EQ(Replace(bitmap), nullptr);
    CGdiObject* const none = dc.SelectObject(&bitmap);
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(dc.SelectObject(&bitmap)->m_hObject, bitmap.m_hObject);
    EXPECT_EQ(dc.GetPixel(2, 1), 0U);
    EXPECT_EQ(dc.SelectObject(none)->m_hObject, bitmap.m_hObject);
    EXPECT_EQ(dc.GetPixel(2, 1), CLR_INVALID);
    dc.SelectObject(&bitmap);
    bitmap.DeleteObject();
    EXPECT_EQ(dc.GetPixel(2, 1), CLR_INVALID) << "deleted while selected";
}

TEST_F(DeviceContext, ObjectsHaveHandlesOfTheirOwnUntilThereAreTooMany) {
    // Twice, since wrappers delete what they own.
    for (int round = 0; round < 2; ++round) {
        std::vector<std::unique_ptr<CBrush>> brushes;
        std::vector<HGDIOBJ> handles;
        do {
            brushes.push_back(std::make_unique<CBrush>(0));
            handles.push_back(*brushes.back());
        } while (handles.back() && handles.size() < 100000);
        EXPECT_EQ(handles.back(), nullptr);
        EXPECT_GT(handles.size(), 60000U);
        std::ranges::sort(handles);
        EXPECT_EQ(std::ranges::adjacent_find(handles), handles.end());
    }
}

TEST_F(DeviceContext, ThreadsMakeAndDeleteObjectsAtATimeAndShareTheStockObjects) {
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int k = 0; k < 500; ++k) {
                CFont font;
                MakeSans(font);
                CDC dc;
                dc.CreateCompatibleDC(nullptr);
                EXPECT_EQ(dc.SelectObject(&font)->m_hObject, GetStockObject(SYSTEM_FONT));
                CBitmap bitmap;
                bitmap.CreateCompatibleBitmap(&dc, 2, 2);
                CGdiObject* const empty = dc.SelectObject(&bitmap);
                EXPECT_EQ(dc.SelectObject(empty)->m_hObject, bitmap.m_hObject);
            }
        });
    }
}

}  // namespace
