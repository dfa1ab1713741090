// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

/// Wraps a drawing object by its handle and owns it: destruction deletes the object, unless it
/// was detached. Made empty. Wrappers that `FromHandle` makes up own nothing.
class MARLIN_API CGdiObject {
public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() noexcept = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject();

    /// The wrapper that the handle is attached to, or one made up for it that lives as long as
    /// the object; null for a handle of no object.
    [[nodiscard]] static CGdiObject* FromHandle(HGDIOBJ handle) noexcept;

    [[nodiscard]] HGDIOBJ GetSafeHandle() const noexcept;
    [[nodiscard]] operator HGDIOBJ() const noexcept { return GetSafeHandle(); }

    /// Takes over an object; false, and the wrapper unchanged, for a handle of none.
    bool Attach(HGDIOBJ handle) noexcept;
    /// Gives the object up without deleting it.
    HGDIOBJ Detach() noexcept;
    /// Deletes the object; false when there is none or it may not be deleted now.
    bool DeleteObject() noexcept;
    /// Takes a stock object, which deletion leaves alone; false for an unknown number.
    bool CreateStockObject(int index) noexcept;
};
