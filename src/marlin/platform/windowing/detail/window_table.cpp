// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/platform/windowing/detail/window_table.h>

#include <vector>

namespace PLATFORM {

namespace {

[[gnu::init_priority(MARLINSUITE::detail::LoadValues)]] WindowTable all;

}  // namespace

WindowTable& WindowTable::Get() noexcept {
    return all;
}

WindowTable::~WindowTable() {
    for (auto& [window, record] : m_Records) {
        LetGo(record);
    }
}

void WindowTable::LetGo(Record& record) noexcept {
    if (record.Attached) {
        record.Attached->m_hWnd = nullptr;
    }
    if (record.MadeUp) {
        record.MadeUp->m_hWnd = nullptr;
    }
}

WindowTable::Record* WindowTable::Find(HWND window) {
    const auto found = m_Records.find(window);
    return found == m_Records.end() ? nullptr : &found->second;
}

HWND WindowTable::Add(HWND parent, int id) {
    Record record;
    record.Parent = parent;
    record.Id = id;
    record.Queue = MessageQueue::OfThisThread();
    const std::scoped_lock lock(m_Lock);
    const HWND window = reinterpret_cast<HWND>(++m_LastHandle);
    m_Records[window] = std::move(record);
    return window;
}

void WindowTable::AddOwned(CWnd* owner) {
    const HWND window = Add(nullptr, 0);
    const std::scoped_lock lock(m_Lock);
    Attach(window, owner);
    Find(window)->IsOwned = true;
}

void WindowTable::Erase(HWND window) {
    auto record = m_Records.extract(window);
    if (record) {
        LetGo(record.mapped());
        record.mapped().Queue->Drop(window);
    }
}

bool WindowTable::RemoveOwned(const CWnd* owner) {
    const std::scoped_lock lock(m_Lock);
    const HWND window = owner->m_hWnd;
    const Record* const record = Find(window);
    const bool isOwned = record && record->IsOwned && record->Attached == owner;
    if (isOwned) {
        Erase(window);
    }
    return isOwned;
}

MessageTarget WindowTable::Target(HWND window) {
    const std::scoped_lock lock(m_Lock);
    const Record* const record = Find(window);
    return record ? MessageTarget{Wrapper(window), record->Queue} : MessageTarget();
}

CWnd* WindowTable::Attached(HWND window) {
    const std::scoped_lock lock(m_Lock);
    const Record* const record = Find(window);
    return record ? record->Attached : nullptr;
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

void WindowTable::Detach(const CWnd* wrapper) {
    const std::scoped_lock lock(m_Lock);
    Record* const record = Find(wrapper->m_hWnd);
    if (record && record->Attached == wrapper) {
        record->Attached = nullptr;
    }
}

}  // namespace PLATFORM
