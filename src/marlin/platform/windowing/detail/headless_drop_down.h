// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/drop_down_list.h>

#include <vector>

namespace PLATFORM::detail {

/// A drop-down list kept in memory.
class HeadlessDropDown final : public DropDownList {
public:
    explicit HeadlessDropDown(const ControlTemplate& form);

    [[nodiscard]] int ItemCount() const override { return static_cast<int>(m_Items.size()); }
    [[nodiscard]] CString ItemText(int item) const override;
    int AddItem(const CString& text) override;
    [[nodiscard]] int CurrentItem() const override { return m_Current; }
    void SetCurrentItem(int item) override { m_Current = HasItem(item) ? item : -1; }

    [[nodiscard]] bool HasItem(int item) const { return item >= 0 && item < ItemCount(); }

private:
    bool m_IsSorted;
    std::vector<CString> m_Items;
    int m_Current = -1;
};

}  // namespace PLATFORM::detail
