// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/drawing/fonts.h>
#include <marlin/platform/drawing/gdi_objects.h>
#include <marlin/platform/drawing/painting.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;
constexpr COLORREF White = 0xFFFFFF;

// A surface with the context that paints on it; black at first.
class Surface {
public:
    Surface(int width, int height) : m_Width(width), m_Height(height) {
        m_DC.CreateCompatibleDC(nullptr);
        m_Bitmap.CreateCompatibleBitmap(&m_DC, width, height);
        m_DC.SelectObject(&m_Bitmap);
    }
    ~Surface() { m_DC.DeleteDC(); }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    [[nodiscard]] CDC& DC() { return m_DC; }
    [[nodiscard]] CBitmap& Bitmap() { return m_Bitmap; }

    // The smallest rectangle around all pixels that are not black.
    [[nodiscard]] CRect Painted() const {
        CRect box(m_Width, m_Height, 0, 0);
        for (int y = 0; y < m_Height; ++y) {
            for (int x = 0; x < m_Width; ++x) {
                if (m_DC.GetPixel(x, y) != 0) {
                    box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                           std::max(box.bottom, y + 1)};
                }
            }
        }
        return box;
    }
    // Rows of "." for black and "#" for all else.
    [[nodiscard]] std::string Picture() const {
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(m_Width * m_Height));
        m_Bitmap.GetBitmapBits(pixels.size() * 4, pixels.data());
        std::string rows;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            rows += pixels[i] == 0 ? '.' : '#';
            rows += (i + 1) % static_cast<std::size_t>(m_Width) == 0 ? "\n" : "";
        }
        return rows;
    }

private:
    int m_Width;
    int m_Height;
    CDC m_DC;
    CBitmap m_Bitmap;
};

// White text in a cell of 40 pixels, without background.
void UseText(CDC& dc, CFont& font, int escapement = 0, unsigned char underline = 0) {
    font.CreateFontA(40, 0, escapement, escapement, 400, 0, underline, 0, 0, OUT_TT_ONLY_PRECIS, 0,
                     0, 0, "Liberation Sans");
    dc.SelectObject(&font);
    dc.SetTextColor(White);
    dc.SetBkMode(TRANSPARENT);
}

TEST(Painting, FillsWithoutTheRightAndBottomEdge) {
    Surface surface(5, 4);
    CBrush red(Red);
    const CRect rect(1, 1, 4, 3);
    surface.DC().FillRect(rect, &red);
    EXPECT_EQ(surface.Picture(), ".....\n.###.\n.###.\n.....\n");
    EXPECT_EQ(surface.DC().GetPixel(1, 1), Red);
    EXPECT_EQ(surface.DC().GetPixel(5, 0), CLR_INVALID);
    std::vector<unsigned char> bytes(5 * 4 * 4 + 1, 7);
    EXPECT_EQ(surface.Bitmap().GetBitmapBits(1000, bytes.data()), 80U);
    // Row 1, pixel 1: blue, green, red, unused.
    EXPECT_EQ(std::vector<unsigned char>(bytes.begin() + 24, bytes.begin() + 28),
              (std::vector<unsigned char>{0, 0, 255, 0}));
    EXPECT_EQ(bytes.back(), 7);
}

TEST(Painting, FramesOneUnitWithinTheRectangle) {
    Surface surface(6, 5);
    CBrush blue(Blue);
    surface.DC().FrameRect(CRect(1, 0, 5, 5), &blue);
    EXPECT_EQ(surface.Picture(), ".####.\n.#..#.\n.#..#.\n.#..#.\n.####.\n");
    EXPECT_EQ(surface.DC().GetPixel(1, 0), Blue);
}

TEST(Painting, IsCutToTheSurface) {
    Surface surface(3, 2);
    CBrush red(Red);
    surface.DC().FillRect(CRect(2, 1, 1000000, 1000000), &red);
    surface.DC().FillRect(CRect(-50, -50, 1, 1), &red);
    EXPECT_EQ(surface.Picture(), "#..\n..#\n");
    EXPECT_EQ(surface.DC().SetPixel(3, 0, Red), CLR_INVALID);
}

TEST(Painting, FollowsTheMapping) {
    Surface surface(6, 4);
    surface.DC().SetMapMode(MM_ANISOTROPIC);
    surface.DC().SetWindowExt(1, 1);
    surface.DC().SetViewportExt(2, -1);
    surface.DC().SetViewportOrg(0, 4);
    CBrush red(Red);
    surface.DC().FillRect(CRect(1, 3, 2, 1), &red);
    EXPECT_EQ(surface.Picture(), "......\n..##..\n..##..\n......\n");
}

TEST(Painting, WrongBrushesAndHollowOnesPaintNothing) {
    Surface surface(2, 1);
    const RECT rect{0, 0, 2, 1};
    EXPECT_EQ(FillRect(surface.DC(), &rect, nullptr), 0);
    EXPECT_EQ(FillRect(surface.DC(), nullptr, CBrush(Red)), 0);
    EXPECT_NE(FillRect(surface.DC(), &rect, static_cast<HBRUSH>(GetStockObject(NULL_BRUSH))), 0);
    EXPECT_EQ(surface.Picture(), "..\n");
}

TEST(TextPainting, StaysWithinTheMeasuredCell) {
    Surface surface(400, 100);
    CFont font;
    UseText(surface.DC(), font);
    const CSize size = surface.DC().GetTextExtent("HfgjQ");
    ASSERT_TRUE(surface.DC().TextOut(20, 30, "HfgjQ"));
    const CRect painted = surface.Painted();
    EXPECT_GE(painted.left, 20);
    EXPECT_LE(painted.right, 20 + size.cx);
    EXPECT_GE(painted.top, 30);
    EXPECT_LE(painted.bottom, 30 + size.cy);
    // It fills most of the cell.
    EXPECT_GT(painted.Width(), size.cx * 8 / 10);
    EXPECT_GT(painted.Height(), size.cy * 7 / 10);
}

TEST(TextPainting, AlignmentMovesTheTextByItsCell) {
    CFont font;
    Surface plain(600, 300);
    UseText(plain.DC(), font);
    const CSize size = plain.DC().GetTextExtent("Depth");
    plain.DC().TextOut(300, 150, "Depth");
    const CRect from = plain.Painted();
    struct {
        unsigned int Alignment;
        int DX;
        int DY;
    } const cases[] = {{TA_RIGHT, size.cx, 0},
                       {TA_CENTER, size.cx / 2, 0},
                       {TA_BOTTOM, 0, size.cy},
                       // The ascent of the face is 1854 of 2288 units.
                       {TA_RIGHT | TA_BASELINE, size.cx, 32}};
    for (const auto& c : cases) {
        CFont again;
        Surface surface(600, 300);
        UseText(surface.DC(), again);
        surface.DC().SetTextAlign(c.Alignment);
        surface.DC().TextOut(300, 150, "Depth");
        const CRect to = surface.Painted();
        EXPECT_NEAR(to.left, from.left - c.DX, 1) << c.Alignment;
        EXPECT_NEAR(to.bottom, from.bottom - c.DY, 1) << c.Alignment;
    }
}

TEST(TextPainting, EscapementTurnsCounterClockwise) {
    Surface surface(200, 200);
    CFont font;
    UseText(surface.DC(), font, 900);
    surface.DC().SetTextAlign(TA_BASELINE);
    surface.DC().TextOut(100, 150, "Depth");
    const CRect painted = surface.Painted();
    // The text runs upwards from the point, its top to the left.
    EXPECT_LE(painted.bottom, 150);
    EXPECT_GT(painted.Height(), painted.Width());
    EXPECT_LT(painted.left, 80);
    EXPECT_LT(painted.right, 112);
}

TEST(TextPainting, AnOpaqueBackgroundFillsTheCell) {
    Surface surface(200, 100);
    CFont font;
    UseText(surface.DC(), font);
    surface.DC().SetBkMode(OPAQUE);
    surface.DC().SetBkColor(Blue);
    const CSize size = surface.DC().GetTextExtent("ii");
    surface.DC().TextOut(50, 20, "ii");
    const CRect painted = surface.Painted();
    EXPECT_EQ(painted.TopLeft(), CPoint(50, 20));
    EXPECT_NEAR(painted.right, 50 + size.cx, 1);
    EXPECT_EQ(painted.bottom, 20 + size.cy);
    EXPECT_EQ(surface.DC().GetPixel(51, 58), Blue);
}

TEST(TextPainting, UnderlinesTheWholeWidth) {
    Surface surface(300, 100);
    CFont font;
    UseText(surface.DC(), font, 0, 1);
    const CSize size = surface.DC().GetTextExtent("  ");
    surface.DC().TextOut(50, 20, "  ");
    const CRect painted = surface.Painted();
    EXPECT_EQ(painted.left, 50);
    EXPECT_NEAR(painted.Width(), size.cx, 1);
    // Below the baseline, which is 32 pixels below the top of the cell.
    EXPECT_GT(painted.top, 20 + 32);
    EXPECT_LE(painted.bottom, 20 + 40);
}

TEST(TextPainting, LongTextsArePaintedToTheirEnd) {
    Surface surface(8000, 60);
    CFont font;
    UseText(surface.DC(), font);
    const std::string text(300, 'm');
    const int width = surface.DC().GetTextExtent(text.c_str()).cx;
    ASSERT_LT(width, 15000);
    // The end of the text stands at the end of the surface, its start far off it.
    surface.DC().SetTextAlign(TA_RIGHT);
    surface.DC().TextOut(8000, 5, text.c_str(), 300);
    const CRect painted = surface.Painted();
    EXPECT_EQ(painted.left, 0);
    EXPECT_GT(painted.right, 7990);
}

TEST(TextPainting, HugeTextsAndOddCountsDoNoHarm) {
    Surface surface(20, 20);
    CFont font;
    font.CreateFontA(2147483647, 0, 450, 0, 400, 0, 1, 1, 0, OUT_TT_ONLY_PRECIS, 0, 0, 0, "Arial");
    surface.DC().SelectObject(&font);
    EXPECT_TRUE(surface.DC().TextOut(0, 0, "Depth"));
    EXPECT_FALSE(surface.DC().TextOut(0, 0, "x", -1));
    EXPECT_FALSE(surface.DC().TextOut(0, 0, nullptr, 1));
    EXPECT_TRUE(surface.DC().TextOut(0, 0, nullptr, 0));
}

TEST(TextPainting, TheDisplayTakesTextAndShowsNone) {
    CDC dc;
    dc.CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    EXPECT_TRUE(dc.TextOut(0, 0, "Depth"));
    EXPECT_EQ(dc.GetPixel(5, 5), CLR_INVALID);
}

}  // namespace
