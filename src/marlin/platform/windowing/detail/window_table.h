// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/message_queue.h>

#include <memory>
#include <mutex>
#include <unordered_map>

namespace PLATFORM {

/// The object that a message to a window goes to and the queue of the thread that made the
/// window; null for none.
struct MessageTarget {
    CWnd* Window = nullptr;
    std::shared_ptr<MessageQueue> Queue;

    [[nodiscard]] bool IsOfThisThread() const {
        return Window && Queue == MessageQueue::OfThisThread();
    }
};

/// The windows of the process and the objects attached to them.
class WindowTable {
public:
    WindowTable() = default;
    WindowTable(const WindowTable&) = delete;
    WindowTable& operator=(const WindowTable&) = delete;
    ~WindowTable();

    [[nodiscard]] static WindowTable& Get() noexcept;

    /// A new window of the calling thread; a control has a parent and its number.
    [[nodiscard]] HWND Add(HWND parent, int id);
    /// A new window that ends with its object.
    void AddOwned(CWnd* owner);
    /// Ends a window and its controls; their objects have none afterwards, and messages that
    /// wait for them are dropped.
    void Remove(HWND window);
    /// Ends the window that is owned by the object; false when it owns none.
    bool RemoveOwned(const CWnd* owner);
    [[nodiscard]] MessageTarget Target(HWND window);

    [[nodiscard]] bool Has(HWND window);
    [[nodiscard]] HWND Parent(HWND window);
    [[nodiscard]] int Id(HWND window);
    [[nodiscard]] HWND Child(HWND parent, int id);

    [[nodiscard]] CWnd* Attached(HWND window);
    /// The attached object, or one made up for the window.
    [[nodiscard]] CWnd* Wrapper(HWND window);
    bool Attach(HWND window, CWnd* wrapper);
    void Detach(const CWnd* wrapper);

private:
    struct Record {
        HWND Parent = nullptr;
        int Id = 0;
        CWnd* Attached = nullptr;
        bool IsOwned = false;
        std::unique_ptr<CWnd> MadeUp;
        std::shared_ptr<MessageQueue> Queue;
    };

    [[nodiscard]] Record* Find(HWND window);
    void Erase(HWND window);
    static void LetGo(Record& record) noexcept;

    // Recursive: ending a made-up wrapper comes back here.
    std::recursive_mutex m_Lock;
    std::unordered_map<HWND, Record> m_Records;
    std::uintptr_t m_LastHandle = 0;
};

}  // namespace PLATFORM
