// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/drop_down_list.h>

#include <QComboBox>

namespace PLATFORM::detail {

/// A drop-down list as a widget.
class DropDownWidget final : public QComboBox, public DropDownList {
public:
    explicit DropDownWidget(const ControlTemplate& form);

    [[nodiscard]] int ItemCount() const override { return count(); }
    [[nodiscard]] CString ItemText(int item) const override;
    int AddItem(const CString& text) override;
    [[nodiscard]] int CurrentItem() const override { return currentIndex(); }
    void SetCurrentItem(int item) override { setCurrentIndex(item); }

private:
    [[nodiscard]] int PlaceOf(const CString& text) const;

    bool m_IsSorted;
};

}  // namespace PLATFORM::detail
