// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/drop_down_widget.h>
#include <marlin/qt/detail/qt_text.h>

namespace PLATFORM::detail {

DropDownWidget::DropDownWidget(const ControlTemplate& form) : m_IsSorted(form.Sorted) {
    for (const std::string_view item : form.Items) {
        addItem(QtText(item), QByteArray(item.data(), static_cast<int>(item.size())));
    }
    setCurrentIndex(-1);
}

CString DropDownWidget::ItemText(int item) const {
    return CString(itemData(item).toByteArray().toStdString());
}

int DropDownWidget::PlaceOf(const CString& text) const {
    int place = m_IsSorted ? 0 : count();
    while (place < count() && text.CompareNoCase(ItemText(place)) >= 0) {
        ++place;
    }
    return place;
}

int DropDownWidget::AddItem(const CString& text) {
    const int place = PlaceOf(text);
    const bool hadNone = currentIndex() < 0;
    insertItem(place, QtText(text.View()), QByteArray(text.GetString(), text.GetLength()));
    // Qt chooses the first item that comes into an empty list.
    if (hadNone) {
        setCurrentIndex(-1);
    }
    return place;
}

}  // namespace PLATFORM::detail
