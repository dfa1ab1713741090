// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/drawing/detail/painting.h>
#include <marlin/platform/drawing/detail/text_painting.h>
#include <marlin/platform/fonts/detail/selected_font.h>

#include <utility>

using namespace PLATFORM::detail;

namespace {

// Sets a value of a context and returns the one before, or the failure value.
template <typename Value>
Value Replace(HDC dc, Value ContextRecord::*member, Value value, Value failure) noexcept {
    ContextRecord* const context = Contexts().Find(dc);
    return context ? std::exchange(context->*member, value) : failure;
}

CSize SetExtent(HDC dc, SIZE Mapping::*extent, SIZE value) noexcept {
    ContextRecord* const context = Contexts().Find(dc);
    return context ? context->Map.SetExtent(extent, value) : SIZE();
}

}  // namespace

CDC::~CDC() {
    DeleteDC();
}

CDC* CDC::FromHandle(HDC handle) noexcept {
    return Contexts().WrapperOf(handle);
}

bool CDC::Own(HDC dc) noexcept {
    if (dc) {
        DeleteDC();
        m_hDC = m_hAttribDC = dc;
    }
    return dc != nullptr;
}

bool CDC::CreateDCA(const char* driver, const char*, const char*, const void*) {
    return driver && MARLINSUITE::EqualIgnoringCase(driver, "DISPLAY") &&
           Own(static_cast<HDC>(Contexts().Add({})));
}

bool CDC::CreateCompatibleDC(CDC* dc) {
    if (dc && !Contexts().Find(dc->m_hDC)) {
        return false;
    }
    ContextRecord context;
    // So that selecting a first bitmap returns something to go back to.
    context.Selected[BitmapKind] = EmptyBitmap();
    return Own(static_cast<HDC>(Contexts().Add(std::move(context))));
}

bool CDC::DeleteDC() noexcept {
    m_hAttribDC = nullptr;
    return Contexts().Remove(std::exchange(m_hDC, nullptr));
}

int CDC::GetDeviceCaps(int index) const noexcept {
    if (!Contexts().Find(m_hAttribDC)) {
        return 0;
    }
    switch (index) {
        // 1920 and 1080 pixels at 96 dots an inch, in whole millimetres.
        case HORZSIZE:
            return 508;
        case VERTSIZE:
            return 286;
        case HORZRES:
            return 1920;
        case VERTRES:
            return 1080;
        default:
            return 0;
    }
}

CGdiObject* CDC::SelectGdiObject(HDC dc, HGDIOBJ object) {
    ContextRecord* const context = Contexts().Find(dc);
    const ObjectRecord* const record = Objects().Find(object);
    if (!context || !record) {
        return nullptr;
    }
    // A context of the display has no bitmap and takes none.
    HGDIOBJ& selected = context->Selected[record->index()];
    return selected ? CGdiObject::FromHandle(std::exchange(selected, object)) : nullptr;
}

CGdiObject* CDC::SelectStockObject(int index) {
    return SelectGdiObject(m_hDC, ::GetStockObject(index));
}

CGdiObject* CDC::SelectObject(const CGdiObject* object) {
    return SelectGdiObject(m_hDC, object ? object->m_hObject : nullptr);
}

int CDC::SetMapMode(int mode) noexcept {
    ContextRecord* const context = Contexts().Find(m_hDC);
    return context ? context->Map.SetMode(mode) : 0;
}

CSize CDC::SetWindowExt(int cx, int cy) noexcept {
    return SetExtent(m_hDC, &Mapping::WindowExtent, {cx, cy});
}

CSize CDC::SetViewportExt(int cx, int cy) noexcept {
    return SetExtent(m_hDC, &Mapping::ViewportExtent, {cx, cy});
}

unsigned int CDC::SetTextAlign(unsigned int alignment) noexcept {
    return Replace(m_hDC, &ContextRecord::Alignment, alignment, GDI_ERROR);
}

COLORREF CDC::SetTextColor(COLORREF color) noexcept {
    return Replace(m_hDC, &ContextRecord::TextColor, color & EveryColorBit, CLR_INVALID);
}

COLORREF CDC::SetBkColor(COLORREF color) noexcept {
    return Replace(m_hDC, &ContextRecord::BackColor, color & EveryColorBit, CLR_INVALID);
}

unsigned int CDC::GetOutlineTextMetricsA(unsigned int size, OUTLINETEXTMETRICA* metrics) const {
    const SelectedFont font = FontOf(m_hAttribDC);
    if (!font || (metrics && size < sizeof *metrics)) {
        return 0;
    }
    if (metrics) {
        *metrics = font.Sized.Metrics();
        metrics->otmTextMetrics.tmUnderlined = font.Record->Underline;
        metrics->otmTextMetrics.tmStruckOut = font.Record->StrikeOut;
    }
    return sizeof *metrics;
}

void CDC::FillRect(const RECT* rect, CBrush* brush) noexcept {
    const ContextRecord* const context = Contexts().Find(m_hDC);
    const auto* const used = FindObject<BrushRecord>(brush ? brush->m_hObject : nullptr);
    if (context && rect && used) {
        Fill(*context, *rect, used->Color);
    }
}

void CDC::FrameRect(const RECT* rect, CBrush* brush) noexcept {
    // An empty rectangle has no inside for its edge.
    if (!rect || rect->left == rect->right || rect->top == rect->bottom) {
        return;
    }
    const auto [left, right] = std::minmax(rect->left, rect->right);
    const auto [top, bottom] = std::minmax(rect->top, rect->bottom);
    for (const RECT& edge :
         {RECT{left, top, right, top + 1}, RECT{left, bottom - 1, right, bottom},
          RECT{left, top, left + 1, bottom}, RECT{right - 1, top, right, bottom}}) {
        FillRect(&edge, brush);
    }
}

bool CDC::TextOut(int x, int y, const CString& text) {
    return PaintText(m_hDC, {x, y}, text.View());
}

COLORREF CDC::GetPixel(int x, int y) const noexcept {
    const ContextRecord* const context = Contexts().Find(m_hDC);
    return context ? ColorAt(*context, {x, y}) : CLR_INVALID;
}
