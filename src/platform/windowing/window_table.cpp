// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/window_table.h>

#include <vector>

namespace PLATFORM {

WindowTable& WindowTable::Get() {
    static WindowTable& table = *std::make_unique<WindowTable>().release();  // outlives all users
    return table;
}

WindowTable::Record* WindowTable::Find(HWND window) {
    const auto found = m_Records.find(window);
    return found == m_Records.end() ? nullptr : &found->second;
}

HWND WindowTable::Add(HWND parent, int id) {
    const std::scoped_lock lock(m_Lock);
    const HWND window = reinterpret_cast<HWND>(++m_Last * 4);
    m_Records[window] = {parent, id, nullptr, nullptr};
    return window;
}

void WindowTable::Erase(HWND window) {
    auto record = m_Records.extract(window);
    if (record && record.mapped().Attached) {
        record.mapped().Attached->m_hWnd = nullptr;
    }
    if (record && record.mapped().MadeUp) {
        record.mapped().MadeUp->m_hWnd = nullptr;
    }
}

void WindowTable::Remove(HWND window) {
    const std::scoped_lock lock(m_Lock);
    std::vector<HWND> children;
    for (const auto& [child, record] : m_Records) {
        if (record.Parent == window && record.Id != 0) {
            children.push_back(child);
        }
    }
    for (const HWND child : children) {
        Erase(child);
    }
    Erase(window);
}

bool WindowTable::Has(HWND window) {
    const std::scoped_lock lock(m_Lock);
    return Find(window) != nullptr;
}

HWND WindowTable::Parent(HWND window) {
    const std::scoped_lock lock(m_Lock);
    const Record* const record = Find(window);
    return record ? record->Parent : nullptr;
}

int WindowTable::Id(HWND window) {
    const std::scoped_lock lock(m_Lock);
    const Record* const record = Find(window);
    return record ? record->Id : 0;
}

HWND WindowTable::Child(HWND parent, int id) {
    const std::scoped_lock lock(m_Lock);
    for (const auto& [child, record] : m_Records) {
        if (parent && record.Parent == parent && record.Id == id) {
            return child;
        }
    }
    return nullptr;
}

CWnd* WindowTable::Wrapper(HWND window) {
    const std::scoped_lock lock(m_Lock);
    Record* const record = Find(window);
    if (!record) {
        return nullptr;
    }
    if (record->Attached) {
        return record->Attached;
    }
    if (!record->MadeUp) {
        record->MadeUp = std::make_unique<CWnd>();
        record->MadeUp->m_hWnd = window;
    }
    return record->MadeUp.get();
}

bool WindowTable::Attach(HWND window, CWnd* wrapper) {
    const std::scoped_lock lock(m_Lock);
    Record* const record = Find(window);
    if (!record || record->Attached || wrapper->m_hWnd) {
        return false;
    }
    record->Attached = wrapper;
    wrapper->m_hWnd = window;
    return true;
}

void WindowTable::Detach(HWND window) {
    const std::scoped_lock lock(m_Lock);
    if (Record* const record = Find(window)) {
        record->Attached = nullptr;
    }
}

}  // namespace PLATFORM
