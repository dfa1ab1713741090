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

    /// Drops the images from `count` on, or appends images without pixels up to it.
    void SetImageCount(UINT count) { m_Blocks.resize(count, NoBlock); }
    /// Makes an image the same as another, with which it shares its pixels. False, and nothing
    /// changed, for an unknown index.
    bool Copy(int image, int source);

    [[nodiscard]] int GetImageCount() const noexcept { return static_cast<int>(m_Blocks.size()); }
    [[nodiscard]] int Width() const noexcept { return m_Width; }
    [[nodiscard]] int Height() const noexcept { return m_Height; }
    /// The pixels of an image as color words, rows from the top; empty for an unknown index and
    /// for an image without pixels. Images that share their pixels have them at one place.
    [[nodiscard]] std::span<const std::uint32_t> Pixels(int image) const noexcept;

private:
    static constexpr std::uint32_t NoBlock = 0xFFFFFFFFU;

    [[nodiscard]] std::size_t Area() const noexcept;
    [[nodiscard]] bool HasImage(int image) const noexcept {
        return image >= 0 && image < GetImageCount();
    }

    int m_Width = 0;
    int m_Height = 0;
    std::vector<std::uint32_t> m_Pixels;  ///< Block after block, each the pixels of one image.
    std::vector<std::uint32_t> m_Blocks;  ///< Of each image, its block.
};
