// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

class CDC;
class CGdiObject;

/// Selects a drawing object into a device context for the lifetime of a scope, and selects the
/// object before again at its end. Selectors of one context must end in the reverse order of their
/// making; the context and the selected object must outlive them. An object before that is deleted
/// meanwhile is not selected again, and none in its place. Does nothing with a null context.
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
    /// By an object, which has to live longer: temporaries are refused.
    [[nodiscard]] GDISelector(CDC* dc, CGdiObject& object);
    GDISelector(CDC* dc, const CGdiObject&& object) = delete;
    /// By a raw handle. Selects nothing when the handle is not that of an object. Pointers to
    /// objects, which would pass for handles, are refused.
    [[nodiscard]] GDISelector(CDC* dc, void* handle);
    template <class Object>
    GDISelector(CDC* dc, Object* object) = delete;
    /// Selects the stock object of that index, and leaves it selected at the end.
    [[nodiscard]] GDISelector(CDC* dc, int stockIndex);
    GDISelector(const GDISelector&) = delete;
    GDISelector& operator=(const GDISelector&) = delete;
    ~GDISelector();

    /// True when there is an object to be selected again at the end. Mind that the name suggests
    /// the opposite.
    [[nodiscard]] bool operator!() const noexcept { return m_Previous != nullptr; }

private:
    CDC* m_DC;
    // Its handle, since the pointer may come to mean another object.
    HGDIOBJ m_Previous = nullptr;
};
