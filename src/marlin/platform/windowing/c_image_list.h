// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/windowing/messages.h>

#include <cstdint>
#include <span>
#include <vector>

class CBitmap;

inline constexpr UINT ILC_MASK = 0x01;
inline constexpr UINT ILC_COLOR32 = 0x20;

/// Images of one size; each pixel has a color or is transparent. Empty at first.
class MARLIN_API CImageList {
public:
    /// The word of a transparent pixel, which no color has.
    static constexpr std::uint32_t Transparent = 0x80000000U;

    /// Starts an empty list of images of that size; false for a size that is not positive. The
    /// flags and the counts change nothing: pixels have 32 bits, and the list grows as needed.
    bool Create(int width, int height, UINT flags, int initial, int grow);
    void DeleteImageList() noexcept;

    /// Appends the images that lie side by side in a bitmap, with the pixels of the mask color
    /// transparent. Returns the index of the first; -1, and changes nothing, before `Create` and
    /// for a bitmap that is smaller than one image.
    int Add(CBitmap* bitmap, COLORREF mask);

    [[nodiscard]] int GetImageCount() const noexcept;
    [[nodiscard]] int Width() const noexcept { return m_Width; }
    [[nodiscard]] int Height() const noexcept { return m_Height; }
    /// The pixels of an image as color words, rows from the top; empty for an unknown index.
    [[nodiscard]] std::span<const std::uint32_t> Pixels(int image) const noexcept;

private:
    [[nodiscard]] std::size_t Area() const noexcept;

    int m_Width = 0;
    int m_Height = 0;
    std::vector<std::uint32_t> m_Pixels;
};
