// SPDX-License-Identifier: MIT
#include <marlin/base/files/file_object.h>
#include <marlin/color/dxf_color_table.h>

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <string>

DXFColorTable::~DXFColorTable() = default;

DXFColor DXFColorTable::DxfColorOrDefault(std::size_t entry) const noexcept {
    return entry < m_DxfColors.size() ? m_DxfColors[entry] : m_DefaultDxfColor;
}

DXFColor DXFColorTable::EntryDxfColor(int i) const noexcept {
    assert(i >= 0 && i < NumEntries());
    return DxfColorOrDefault(static_cast<std::size_t>(i));
}

DXFColor DXFColorTable::GetDXFColor(double value) const noexcept {
    if (m_Values.empty() || !(value >= m_Values.front())) {
        return m_DefaultDxfColor;
    }
    return FindDXFColor(value, 0, NumEntries() - 1);
}

DXFColor DXFColorTable::FindDXFColor(double value, int lo, int hi) const noexcept {
    assert(0 <= lo && lo <= hi && hi < NumEntries());
    const auto above =
        std::upper_bound(m_Values.begin() + lo + 1, m_Values.begin() + hi + 1, value);
    return DxfColorOrDefault(static_cast<std::size_t>(above - m_Values.begin()) - 1);
}

void DXFColorTable::Unique() {
    m_DxfColors.clear();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_Colors.size(); ++i) {
        if (kept > 0 && m_Colors[i] == m_Colors[kept - 1]) {
            continue;
        }
        m_Values[kept] = m_Values[i];
        m_Colors[kept] = m_Colors[i];
        m_DxfColors.emplace_back(m_Colors[kept]);
        ++kept;
    }
    m_Values.resize(kept);
    m_Colors.resize(kept);
    m_DefaultDxfColor = DXFColor(m_BelowColor);
}

void DXFColorTable::MakeDXFTable() {
    for (unsigned long& color : m_Colors) {
        color = static_cast<unsigned long>(DXFColor(color));
    }
    Unique();
}

bool DXFColorTable::FileOpen(const CString& path) {
    FileObject file;
    static_cast<void>(file.FileOpen(path));
    return ColorTable::FileOpen(file);
}

bool DXFColorTable::FileSave(const CString& path) const {
    FileObject file;
    if (!ColorTable::FileSave(file)) {
        ErrorString::RecordFailure(std::string(path.View()) + ": a value is not finite");
        return false;
    }
    return file.FileSave(path);
}
