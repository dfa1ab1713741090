// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/base/marlin_string.h>
#include <marlin/core/number_text.h>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace {

constexpr const char* sectionName = "ColorTable";
constexpr const char* belowKey = "Below";

CString EntryKey(int number) {
    std::string key = "Entry(";
    MARLINSUITE::AppendNumber(key, number);
    return CString(std::string_view(key += ')'));
}

bool ReadEntry(const CString& text, double& value, unsigned long& color) {
    const CMarlinString items(text, ',');
    if (items.Size() != 4 || !MARLINSUITE::ParseWhole(items[0].View(), value)) {
        return false;
    }
    color = 0;
    for (int channel = 0; channel < 3; ++channel) {
        int level = -1;
        if (!items.GetItem(channel + 1, level) || level < 0 || level > 255) {
            return false;
        }
        color |= static_cast<unsigned long>(level) << (8 * channel);
    }
    return true;
}

CString EntryText(double value, unsigned long color) {
    std::string text;
    MARLINSUITE::AppendShortest(text, value);
    for (int shift = 0; shift < 24; shift += 8) {
        text += ',';
        MARLINSUITE::AppendNumber(text, (color >> shift) & 0xFFU);
    }
    return CString(std::string_view(text));
}

// A missing text leaves the target; false for one that does not convert.
bool ReadBelow(const FileObject& file, unsigned long& below) {
    CString text;
    return !file.GetEntry(sectionName, belowKey, text) ||
           MARLINSUITE::ParseWhole(text.View(), below);
}

}  // namespace

ColorTable::~ColorTable() = default;

double ColorTable::EntryValue(int index) const noexcept {
    assert(index >= 0 && index < NumEntries());
    return m_Values[static_cast<std::size_t>(index)];
}

unsigned long ColorTable::EntryColor(int index) const noexcept {
    assert(index >= 0 && index < NumEntries());
    return m_Colors[static_cast<std::size_t>(index)];
}

bool ColorTable::AddEntry(double value, unsigned long color) {
    if (!std::isfinite(value)) {
        return false;
    }
    const auto at = std::ranges::upper_bound(m_Values, value) - m_Values.begin();
    m_Values.insert(m_Values.begin() + at, value);
    m_Colors.insert(m_Colors.begin() + at, color);
    return true;
}

void ColorTable::Clear() noexcept {
    m_Values.clear();
    m_Colors.clear();
    m_BelowColor = 0;
}

bool ColorTable::FileOpen(const FileObject& file) {
    Clear();
    if (!file.HasSection(sectionName)) {
        return false;
    }
    std::vector<std::pair<double, unsigned long>> entries;
    CString text;
    while (file.GetEntry(sectionName, EntryKey(static_cast<int>(entries.size())), text)) {
        auto& [value, color] = entries.emplace_back();
        if (!ReadEntry(text, value, color)) {
            return false;
        }
    }
    std::ranges::stable_sort(entries, {}, &std::pair<double, unsigned long>::first);
    unsigned long below = entries.empty() ? 0 : entries.front().second;
    if (!ReadBelow(file, below)) {
        return false;
    }
    for (const auto& [value, color] : entries) {
        m_Values.push_back(value);
        m_Colors.push_back(color);
    }
    m_BelowColor = below;
    return true;
}

bool ColorTable::FileSave(FileObject& file) const {
    if (!std::ranges::all_of(m_Values, [](double value) { return std::isfinite(value); })) {
        return false;
    }
    file.RemoveSection(sectionName);
    std::string below;
    MARLINSUITE::AppendNumber(below, m_BelowColor);
    file.SetEntry(sectionName, belowKey, CString(std::string_view(below)), FileObject::REPLACE);
    for (int i = 0; i < NumEntries(); ++i) {
        file.SetEntry(sectionName, EntryKey(i), EntryText(EntryValue(i), EntryColor(i)),
                      FileObject::REPLACE);
    }
    return true;
}
