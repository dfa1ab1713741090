// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

/// Wraps a drawing object by its handle and owns it: destruction deletes the object, unless it
/// was detached. Made empty. A wrapper from `FromHandle` owns nothing.
class MARLIN_API CGdiObject {
public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() noexcept = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject();

    /// The wrapper that the handle is attached to, or else one that lives as long as the object;
    /// null when the handle is not that of an object.
    [[nodiscard]] static CGdiObject* FromHandle(HGDIOBJ handle) noexcept;

    [[nodiscard]] HGDIOBJ GetSafeHandle() const noexcept;
    [[nodiscard]] operator HGDIOBJ() const noexcept { return GetSafeHandle(); }

    /// Takes over the object of a handle. False, and the wrapper unchanged, when there is none.
    bool Attach(HGDIOBJ handle) noexcept;
    /// Gives the object up without deleting it.
    HGDIOBJ Detach() noexcept;
    /// Deletes the object. False when there is none, or a bitmap that a context holds.
    bool DeleteObject() noexcept;
    /// Takes a stock object, which is not deleted with the wrapper. False for an unknown number.
    bool CreateStockObject(int index) noexcept;
};
