// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

class CDC;
class CGdiObject;

/// Selects a drawing object into a device context for the lifetime of a scope, and selects the
/// object before again at its end. Selectors of one context must end in the reverse order of their
/// making; the context and the selected object must outlive them. Does nothing with a null context.
/// @code
/// CBrush red(0x0000FF);
/// CClientDC dc(nullptr);
/// {
///     const GDISelector selected(&dc, red);
///     CGdiObject* const before = dc.SelectStockObject(BLACK_BRUSH);
///     assert(before->m_hObject == red.m_hObject);
/// }
/// CGdiObject* const before = dc.SelectStockObject(BLACK_BRUSH);
/// assert(before->m_hObject == GetStockObject(WHITE_BRUSH));
/// @endcode
class MARLIN_API GDISelector {
public:
    GDISelector(CDC* dc, CGdiObject& object);
    /// By a raw handle. Selects nothing when the handle is not that of an object.
    GDISelector(CDC* dc, void* handle);
    /// Selects the stock object of that index, and leaves it selected at the end.
    GDISelector(CDC* dc, int stockIndex);
    GDISelector(const GDISelector&) = delete;
    GDISelector& operator=(const GDISelector&) = delete;
    ~GDISelector();

    /// True when there is an object to be selected again at the end. Mind that the name suggests
    /// the opposite.
    [[nodiscard]] bool operator!() const noexcept { return m_Previous != nullptr; }

private:
    CDC* m_DC;
    CGdiObject* m_Previous = nullptr;
};
