// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/windowing/window_types.h>

#include <cstdint>
#include <span>
#include <vector>

class CBitmap;

inline constexpr UINT ILC_MASK = 0x01;
inline constexpr UINT ILC_COLOR32 = 0x20;

/// Images of one size, each pixel with a color or transparent. Made empty.
class MARLIN_API CImageList {
public:
    /// No pixel of a color has this bit; transparent ones have no other.
    static constexpr std::uint32_t Transparent = 0x80000000U;

    /// Begins a list without images; false for a size that is not positive. The flags and the
    /// counts change nothing: pixels have 32 bits, and the list grows as it must.
    bool Create(int width, int height, UINT flags, int initial, int grow);
    void DeleteImageList() noexcept;

    /// Appends the images that stand side by side in a bitmap, with the pixels of the mask color
    /// transparent. The index of the first; -1, and nothing changed, before `Create` and for a
    /// bitmap that does not hold one.
    int Add(CBitmap* bitmap, COLORREF mask);

    [[nodiscard]] int GetImageCount() const noexcept;
    [[nodiscard]] int Width() const noexcept { return m_Width; }
    [[nodiscard]] int Height() const noexcept { return m_Height; }
    /// The pixels of an image as color words, rows from the top; none for an unknown index.
    [[nodiscard]] std::span<const std::uint32_t> Pixels(int image) const noexcept;

private:
    [[nodiscard]] std::size_t Area() const noexcept;

    int m_Width = 0;
    int m_Height = 0;
    std::vector<std::uint32_t> m_Pixels;
};
