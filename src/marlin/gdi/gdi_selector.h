// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

class CDC;
class CGdiObject;

/// Selects a drawing object into a device context for the lifetime of a scope and puts the one
/// before back at its end. Selectors of one context end in the reverse order of their making; the
/// context and the selected object must outlive them. A null context selects nothing.
class MARLIN_API GDISelector {
public:
    GDISelector(CDC* dc, CGdiObject& object);
    /// By a raw handle; one of no object selects nothing.
    GDISelector(CDC* dc, void* handle);
    /// Selects the stock object of that index, which is not undone at the end.
    GDISelector(CDC* dc, int stockIndex);
    GDISelector(const GDISelector&) = delete;
    GDISelector& operator=(const GDISelector&) = delete;
    ~GDISelector();

    /// True when an object was selected and will be put back: the name reads the wrong way round.
    [[nodiscard]] bool operator!() const noexcept { return m_Previous != nullptr; }

private:
    CDC* m_DC;
    CGdiObject* m_Previous = nullptr;
};
