// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/windowing/c_image_list.h>

namespace {

// Blue, green and red of the bitmap's bytes, as a color word.
std::uint32_t ColorWord(const unsigned char* pixel) noexcept {
    return pixel[2] | (std::uint32_t{pixel[1]} << 8U) | (std::uint32_t{pixel[0]} << 16U);
}

}  // namespace

bool CImageList::Create(int width, int height, UINT, int, int) {
    if (width <= 0 || height <= 0) {
        return false;
    }
    m_Width = width;
    m_Height = height;
    m_Pixels.clear();
    m_Blocks.clear();
    return true;
}

void CImageList::DeleteImageList() noexcept {
    m_Width = 0;
    m_Height = 0;
    m_Pixels.clear();
    m_Blocks.clear();
}

std::size_t CImageList::Area() const noexcept {
    return static_cast<std::size_t>(m_Width) * static_cast<std::size_t>(m_Height);
}

int CImageList::Add(CBitmap* bitmap, COLORREF mask) {
    BITMAP size;
    const bool isBitmap = m_Width > 0 && bitmap && bitmap->GetBitmap(&size) != 0;
    if (!isBitmap || size.bmWidth < m_Width || size.bmHeight < m_Height) {
        return -1;
    }
    const auto stride = static_cast<std::size_t>(size.bmWidthBytes);
    std::vector<unsigned char> bits(stride * static_cast<std::size_t>(size.bmHeight));
    bitmap->GetBitmapBits(bits.size(), bits.data());
    // In a bitmap each row of pixels runs through all images; here every image lies by itself.
    const int first = GetImageCount();
    for (int left = 0; left + m_Width <= size.bmWidth; left += m_Width) {
        m_Blocks.push_back(static_cast<std::uint32_t>(m_Pixels.size() / Area()));
        for (int y = 0; y < m_Height; ++y) {
            for (int x = left; x < left + m_Width; ++x) {
                const std::size_t offset =
                    static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x) * 4;
                const std::uint32_t color = ColorWord(&bits[offset]);
                m_Pixels.push_back(color == mask ? Transparent : color);
            }
        }
    }
    return first;
}

bool CImageList::Copy(int image, int source) {
    const bool areThere = HasImage(image) && HasImage(source);
    if (areThere) {
        m_Blocks[static_cast<std::size_t>(image)] = m_Blocks[static_cast<std::size_t>(source)];
    }
    return areThere;
}

std::span<const std::uint32_t> CImageList::Pixels(int image) const noexcept {
    const std::uint32_t block =
        HasImage(image) ? m_Blocks[static_cast<std::size_t>(image)] : NoBlock;
    return block == NoBlock ? std::span<const std::uint32_t>()
                            : std::span(m_Pixels).subspan(block * Area(), Area());
}
