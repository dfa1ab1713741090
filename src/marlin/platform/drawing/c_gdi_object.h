// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/drawing/handles.h>

/// Wraps a font, brush or bitmap by its handle and owns it: destruction deletes the object, and so
/// does creating another one, unless that fails. Made empty. A wrapper from `FromHandle` owns
/// nothing.
class MARLIN_API CGdiObject {
public:
    HGDIOBJ m_hObject = nullptr;  ///< Null while empty.

    CGdiObject() noexcept = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject();

    /// A wrapper that lives as long as the object; null when the handle is not that of an object.
    [[nodiscard]] static CGdiObject* FromHandle(HGDIOBJ handle) noexcept;
    [[nodiscard]] operator HGDIOBJ() const noexcept { return m_hObject; }

    /// Deletes the object; a context that has it selected then has none of the kind. False when
    /// there is no object and for one in stock, which stays.
    bool DeleteObject() noexcept;

protected:
    /// Owns a new object; the one before is deleted. False for null, which changes nothing.
    bool Own(HGDIOBJ object) noexcept;
};

/// A brush or font of the platform, the same one at each call; null for an unknown number.
[[nodiscard]] MARLIN_API HGDIOBJ GetStockObject(int index);
