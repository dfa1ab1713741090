// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/platform/windowing/detail/window_table.h>

#include <vector>

namespace PLATFORM::detail {

namespace {

// An object without a window does not come back here when it is destroyed, which would lock twice.
void LetGo(CWnd* wrapper) noexcept {
    if (wrapper) {
        wrapper->m_hWnd = nullptr;
    }
}

}  // namespace

WindowTable& WindowTable::Get() noexcept {
    return MARLINSUITE::detail::ProcessObject<WindowTable>();
}

WindowTable::~WindowTable() {
    // A host's static objects may be destroyed after the table.
    for (auto& [window, record] : m_Records) {
        LetGo(record.Attached);
        LetGo(record.MadeUp.get());
    }
}

WindowTable::Record* WindowTable::Find(HWND window) {
    const auto found = m_Records.find(window);
    return found == m_Records.end() ? nullptr : &found->second;
}

HWND WindowTable::Insert(Record record) {
    const HWND window = reinterpret_cast<HWND>(++m_LastHandle);
    m_Records[window] = std::move(record);
    return window;
}

HWND WindowTable::Add(HWND parent, int id, std::string name) {
    const std::scoped_lock lock(m_Lock);
    Record record = {parent, id};
    record.Name = std::move(name);
    return Insert(std::move(record));
}

void WindowTable::AddOwned(CWnd* owner) {
    const std::scoped_lock lock(m_Lock);
    owner->m_hWnd = Insert({nullptr, 0, owner, true});
}

void WindowTable::Erase(HWND window) {
    if (auto erased = m_Records.extract(window)) {
        const Record& record = erased.mapped();
        LetGo(record.Attached);
        LetGo(record.MadeUp.get());
        record.Queue->Drop(window);
    }
}

void WindowTable::Remove(HWND window) {
    const std::scoped_lock lock(m_Lock);
    std::vector<HWND> ending = {window};
    for (const auto& [child, record] : m_Records) {
        // A dialog has its parent window too, but not a number there, and outlives it.
        if (record.Parent == window && record.Id != 0) {
            ending.push_back(child);
        }
    }
    for (const HWND ended : ending) {
        Erase(ended);
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

std::string WindowTable::Name(HWND window) {
    const std::scoped_lock lock(m_Lock);
    const Record* const record = Find(window);
    return record ? record->Name : std::string();
}

HWND WindowTable::Child(HWND parent, int id) {
    // A look through all of them: there are few windows at a time.
    const std::scoped_lock lock(m_Lock);
    for (const auto& [child, record] : m_Records) {
        if (parent && record.Parent == parent && record.Id == id) {
            return child;
        }
    }
    return nullptr;
}

MessageTarget WindowTable::Target(HWND window) {
    const std::scoped_lock lock(m_Lock);
    Record* const record = Find(window);
    return record ? MessageTarget{WrapperOf(*record, window), record->Queue} : MessageTarget();
}

CWnd* WindowTable::WrapperOf(Record& record, HWND window) {
    if (record.Attached) {
        return record.Attached;
    }
    if (!record.MadeUp) {
        record.MadeUp = std::make_unique<CWnd>();
        record.MadeUp->m_hWnd = window;
    }
    return record.MadeUp.get();
}

CWnd* WindowTable::Wrapper(HWND window) {
    const std::scoped_lock lock(m_Lock);
    Record* const record = Find(window);
    return record ? WrapperOf(*record, window) : nullptr;
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

}  // namespace PLATFORM::detail
