// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_bitmap.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>

#include <algorithm>
#include <cstring>
#include <new>

using namespace PLATFORM::detail;

namespace {

constexpr int MaxSide = 32767;
constexpr int MaxPixels = 1 << 26;  // 256 MiB

}  // namespace

bool CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    // Two sides within the limit multiply without overflow.
    const bool sized = width > 0 && width <= MaxSide && height > 0 && height <= MaxSide &&
                       width * height <= MaxPixels;
    if (!sized || !dc || !Contexts().Find(dc->m_hDC)) {
        return false;
    }
    BitmapRecord bitmap{width, height, {}};
    try {
        bitmap.Pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    } catch (const std::bad_alloc&) {
        return false;
    }
    return Own(Objects().Add(std::move(bitmap)));
}

int CBitmap::GetBitmap(BITMAP* bitmap) const noexcept {
    const auto* const found = FindObject<BitmapRecord>(m_hObject);
    if (!found || !bitmap) {
        return 0;
    }
    *bitmap = {0, found->Width, found->Height, found->Width * 4};
    return sizeof *bitmap;
}

unsigned long CBitmap::GetBitmapBits(unsigned long count, void* bits) const noexcept {
    const auto* const found = FindObject<BitmapRecord>(m_hObject);
    if (!found || !bits) {
        return 0;
    }
    const std::size_t copied =
        std::min<std::size_t>(count, found->Pixels.size() * sizeof(std::uint32_t));
    std::memcpy(bits, found->Pixels.data(), copied);
    return copied;
}
