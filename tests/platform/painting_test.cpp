// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_client_dc.h>
#include <marlin/platform/drawing/c_font.h>
#include <marlin/platform/fonts/fonts.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;

// A surface with the context that paints on it; all black at first, with white text in a cell of 40
// pixels. The context ends before the objects do.
struct Surface {
    int Width;
    int Height;
    CBitmap Bitmap;
    CFont Font;
    CBrush RedBrush{Red};
    CDC DC;

    Surface(int width, int height, bool underline = false) : Width(width), Height(height) {
        DC.CreateCompatibleDC(nullptr);
        Bitmap.CreateCompatibleBitmap(&DC, width, height);
        DC.SelectObject(&Bitmap);
        Font.CreateFontA(40, 0, 0, 0, 400, 0, underline ? 1 : 0, 0, 0, OUT_TT_ONLY_PRECIS, 0, 0, 0,
                         "Liberation Sans");
        DC.SelectObject(&Font);
        DC.SetTextColor(0xFFFFFF);
        DC.SetBkColor(0);
    }
    [[nodiscard]] CSize Extent(const CString& text) const {
        CSize size;
        EXPECT_NE(GetTextExtentPoint32A(DC, text, text.GetLength(), &size), 0);
        return size;
    }
    // Paints a text and returns the smallest rectangle around all pixels that are not black.
    CRect Painted(int x, int y, const CString& text) {
        EXPECT_TRUE(DC.TextOut(x, y, text));
        CRect box(Width, Height, 0, 0);
        for (y = 0; y < Height; ++y) {
            for (x = 0; x < Width; ++x) {
                if (DC.GetPixel(x, y) != 0) {
                    box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                           std::max(box.bottom, y + 1)};
                }
            }
        }
        return box;
    }
    // Rows of "." for black and "#" for all else.
    [[nodiscard]] std::string Picture() const {
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(Width * Height));
        Bitmap.GetBitmapBits(pixels.size() * 4, pixels.data());
        std::string rows;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            rows += pixels[i] == 0 ? '.' : '#';
            rows += (i + 1) % static_cast<std::size_t>(Width) == 0 ? "\n" : "";
        }
        return rows;
    }
};

TEST(Painting, FillsAndFramesWithoutTheRightAndBottomEdge) {
    Surface surface(5, 4);
    surface.DC.FillRect(CRect(1, 1, 4, 3), &surface.RedBrush);
    EXPECT_EQ(surface.Picture(), ".....\n.###.\n.###.\n.....\n");
    EXPECT_EQ(surface.DC.GetPixel(1, 1), Red);
    EXPECT_EQ(surface.DC.GetPixel(5, 0), CLR_INVALID);
    std::vector<unsigned char> bytes(5 * 4 * 4 + 1, 7);
    EXPECT_EQ(surface.Bitmap.GetBitmapBits(1000, bytes.data()), 80U);
    // Row 1, pixel 1: blue, green, red, unused.
    EXPECT_EQ(std::vector<unsigned char>(bytes.begin() + 24, bytes.begin() + 28),
              (std::vector<unsigned char>{0, 0, 255, 0}));
    EXPECT_EQ(bytes.back(), 7);
    Surface framed(6, 5);
    framed.DC.FrameRect(CRect(1, 0, 5, 5), &framed.RedBrush);
    EXPECT_EQ(framed.Picture(), ".####.\n.#..#.\n.#..#.\n.#..#.\n.####.\n");
}

TEST(Painting, FollowsTheMapping) {
    Surface surface(6, 4);
    surface.DC.SetMapMode(MM_HIMETRIC);
    // 2540 units to 96 pixels: 53 units are 2 pixels, 106 are 4; y upwards from the upper edge.
    surface.DC.FillRect(CRect(53, -26, 106, -79), &surface.RedBrush);
    EXPECT_EQ(surface.Picture(), "......\n..##..\n..##..\n......\n");
    surface.DC.SetMapMode(MM_ISOTROPIC);
    surface.DC.SetWindowExt(1, 1);
    surface.DC.SetViewportExt(2, 2);
    surface.DC.FillRect(CRect(0, 0, 1, 1), &surface.RedBrush);
    EXPECT_EQ(surface.Picture(), "##....\n####..\n..##..\n......\n");
    // A point beyond 32 bits on the device is cut.
    surface.DC.SetViewportExt(2000000000, 2000000000);
    surface.DC.FillRect(CRect(0, 0, 1000, 1000), &surface.RedBrush);
    EXPECT_EQ(surface.Picture(), "######\n######\n######\n######\n");
}

TEST(Painting, IsCutToTheSurfaceAndNeedsARectangleAndABrush) {
    Surface surface(3, 2);
    surface.DC.FillRect(CRect(0, 0, 2, 1), nullptr);
    surface.DC.FillRect(nullptr, &surface.RedBrush);
    surface.DC.FrameRect(nullptr, &surface.RedBrush);
    surface.DC.FrameRect(CRect(0, 0, 2, 0), &surface.RedBrush);
    EXPECT_EQ(surface.Picture(), "...\n...\n");
    surface.DC.FillRect(CRect(2, 1, 1000000, 1000000), &surface.RedBrush);
    surface.DC.FillRect(CRect(-50, -50, 1, 1), &surface.RedBrush);
    EXPECT_EQ(surface.Picture(), "#..\n..#\n");
}

TEST(TextPainting, StaysWithinTheMeasuredCellAndFillsMostOfIt) {
    Surface surface(400, 100);
    const CSize size = surface.Extent("HfgjQ");
    const CRect painted = surface.Painted(20, 30, "HfgjQ");
    EXPECT_GE(painted.left, 20);
    EXPECT_LE(painted.right, 20 + size.cx);
    EXPECT_GE(painted.top, 30);
    EXPECT_LE(painted.bottom, 30 + size.cy);
    EXPECT_GT(painted.Width(), size.cx * 8 / 10);
    EXPECT_GT(painted.Height(), size.cy * 7 / 10);
}

TEST(TextPainting, AlignmentMovesTheTextByItsCell) {
    const CRect from = Surface(600, 300).Painted(300, 150, "Depth");
    const CSize size = Surface(1, 1).Extent("Depth");
    const std::tuple<unsigned int, int, int> cases[] = {
        {TA_RIGHT, size.cx, 0},
        {TA_CENTER, size.cx / 2, 0},
        {TA_BOTTOM, 0, size.cy},
        // The ascent of the face is 1854 of 2288 units.
        {TA_RIGHT | TA_BASELINE, size.cx, 32}};
    for (const auto& [alignment, dx, dy] : cases) {
        Surface surface(600, 300);
        surface.DC.SetTextAlign(alignment);
        const CRect to = surface.Painted(300, 150, "Depth");
        EXPECT_NEAR(to.left, from.left - dx, 1) << alignment;
        EXPECT_NEAR(to.bottom, from.bottom - dy, 1) << alignment;
    }
}

TEST(TextPainting, FillsTheCellWithTheBackground) {
    Surface surface(200, 100);
    surface.DC.SetBkColor(Blue);
    const CSize size = surface.Extent("ii");
    const CRect painted = surface.Painted(50, 20, "ii");
    EXPECT_EQ(CPoint(painted.left, painted.top), CPoint(50, 20));
    EXPECT_NEAR(painted.right, 50 + size.cx, 1);
    EXPECT_EQ(painted.bottom, 20 + size.cy);
    EXPECT_EQ(surface.DC.GetPixel(51, 58), Blue);
}

TEST(TextPainting, UnderlinesTheWholeWidth) {
    Surface surface(300, 100, true);
    const CRect painted = surface.Painted(50, 20, "  ");
    EXPECT_EQ(painted.left, 50);
    EXPECT_NEAR(painted.Width(), surface.Extent("  ").cx, 1);
    // Below the baseline, which is 32 pixels below the top of the cell.
    EXPECT_GT(painted.top, 20 + 32);
    EXPECT_LE(painted.bottom, 20 + 40);
}

TEST(TextPainting, LongTextsArePaintedToTheirEnd) {
    Surface surface(8000, 60);
    const CString text('m', 300);
    ASSERT_LT(surface.Extent(text).cx, 15000);
    // The text ends at the right edge of the surface and starts far to the left of it.
    surface.DC.SetTextAlign(TA_RIGHT);
    const CRect painted = surface.Painted(8000, 5, text);
    EXPECT_EQ(painted.left, 0);
    EXPECT_GT(painted.right, 7990);
}

// Pieces of the text end between its characters, and are read as the whole text is.
TEST(TextPainting, Utf8LooksLikeWindows1252) {
    std::string windows(90, '\xE9');
    for (const std::size_t ascii : {0U, 1U, 60U}) {
        windows.replace(0, ascii, ascii, 'i');
        std::string utf8(ascii, 'i');
        for (std::size_t i = ascii; i < windows.size(); ++i) {
            utf8 += "\xC3\xA9";
        }
        Surface first(2000, 60);
        Surface second(2000, 60);
        EXPECT_GT(first.Painted(5, 5, windows.c_str()).right, 500);
        second.Painted(5, 5, utf8.c_str());
        EXPECT_TRUE(first.Picture() == second.Picture()) << ascii;
    }
    const std::string mixed = std::string(64, 'i') + "\xC3\xA9\xE9";
    Surface surface(2000, 60);
    surface.DC.SetBkColor(Red);
    // One pixel more for the part of a pixel at the end.
    EXPECT_NEAR(surface.Painted(0, 5, mixed.c_str()).right, surface.Extent(mixed.c_str()).cx, 1);
}

TEST(TextPainting, HugeTextsAndTheDisplayDoNoHarm) {
    CFont huge;
    huge.CreateFontA(2147483647, 0, 0, 0, 400, 0, 1, 1, 0, OUT_TT_ONLY_PRECIS, 0, 0, 0, "Arial");
    Surface surface(20, 20);
    surface.DC.SelectObject(&huge);
    EXPECT_TRUE(surface.DC.TextOut(0, 0, "Depth"));
    EXPECT_TRUE(surface.DC.TextOut(0, 0, ""));
    CClientDC display(nullptr);
    EXPECT_TRUE(display.TextOut(0, 0, "Depth"));
    EXPECT_EQ(display.GetPixel(5, 5), CLR_INVALID);
}

}  // namespace
