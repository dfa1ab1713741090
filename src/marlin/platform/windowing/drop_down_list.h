// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

namespace PLATFORM {

/// The items of a drop-down list, as its window system keeps them. It starts with those of its
/// template and none of them chosen.
class MARLIN_API DropDownList {
public:
    DropDownList() = default;
    DropDownList(const DropDownList&) = delete;
    DropDownList& operator=(const DropDownList&) = delete;
    virtual ~DropDownList() = default;

    [[nodiscard]] virtual int ItemCount() const = 0;
    /// Empty for an index that is not there.
    [[nodiscard]] virtual CString ItemText(int item) const = 0;
    /// Appends an item; where the template wants the items sorted, inserts it after those that
    /// are not greater, ignoring case. Returns its index; the chosen item stays the chosen one.
    virtual int AddItem(const CString& text) = 0;

    /// The index of the chosen item, -1 for none.
    [[nodiscard]] virtual int CurrentItem() const = 0;
    /// An index that is not there chooses none.
    virtual void SetCurrentItem(int item) = 0;
};

}  // namespace PLATFORM
