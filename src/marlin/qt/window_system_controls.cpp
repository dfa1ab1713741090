// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/spin_arrows.h>
#include <marlin/qt/detail/state.h>

#include <QCheckBox>
#include <QComboBox>

namespace PLATFORM {

namespace {

// Where an item stands among those in order, behind its equals.
int PlaceOf(const QComboBox& combo, const CString& text) {
    int place = 0;
    while (place < combo.count() && text.CompareNoCase(TextOf(combo.itemText(place))) >= 0) {
        ++place;
    }
    return place;
}

}  // namespace

bool QtWindowSystem::IsChecked(HWND box) const {
    const auto* const found = Find<QCheckBox>(box);
    return found && found->isChecked();
}

void QtWindowSystem::SetChecked(HWND box, bool checked) {
    if (auto* const found = Find<QCheckBox>(box)) {
        found->setChecked(checked);
    }
}

int QtWindowSystem::CurrentItem(HWND combo) const {
    const auto* const found = Find<QComboBox>(combo);
    return found ? found->currentIndex() : -1;
}

void QtWindowSystem::SetCurrentItem(HWND combo, int item) {
    if (auto* const found = Find<QComboBox>(combo)) {
        found->setCurrentIndex(item >= 0 && item < found->count() ? item : -1);
    }
}

int QtWindowSystem::ItemCount(HWND combo) const {
    const auto* const found = Find<QComboBox>(combo);
    return found ? found->count() : 0;
}

CString QtWindowSystem::ItemText(HWND combo, int item) const {
    const auto* const found = Find<QComboBox>(combo);
    return found ? TextOf(found->itemText(item)) : CString();
}

int QtWindowSystem::AddItem(HWND combo, const CString& text) {
    auto* const found = Find<QComboBox>(combo);
    if (!found) {
        return -1;
    }
    const bool hadNone = found->currentIndex() < 0;
    const int place = m_State->Sorted.contains(combo) ? PlaceOf(*found, text) : found->count();
    found->insertItem(place, QtText(text.View()));
    if (hadNone) {
        found->setCurrentIndex(-1);
    }
    return place;
}

void QtWindowSystem::SetRange(HWND spin, int lower, int upper) {
    if (auto* const found = Find<SpinArrows>(spin)) {
        found->SetRange(lower, upper);
    }
}

}  // namespace PLATFORM
