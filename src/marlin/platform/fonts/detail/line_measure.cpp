// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/line_measure.h>

#include <cassert>

namespace PLATFORM {

namespace {

const FontFace* FaceOf(const FontEntry* entry) noexcept {
    return entry ? entry->Face : nullptr;
}

FontScale ScaleOf(const FontFace* face, int height) noexcept {
    FontRecord font;
    font.Height = height;
    return face ? ScaleOf(font, face->Metrics(), Mapping()) : FontScale();
}

}  // namespace

LineMeasure::LineMeasure(int height, int weight, bool italic, std::string_view faceName)
    : m_Face(FaceOf(FontStore::Find(faceName, weight, italic, true))),
      m_Scale(ScaleOf(m_Face, height)) {
    assert(height != 0);
}

}  // namespace PLATFORM
