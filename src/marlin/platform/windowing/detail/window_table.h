// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/detail/message_queue.h>

#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

namespace PLATFORM::detail {

/// The object that handles a window's messages and the queue of the thread that made the window;
/// null for a handle of none.
struct MessageTarget {
    CWnd* Window = nullptr;
    std::shared_ptr<MessageQueue> Queue;

    [[nodiscard]] bool IsOfThisThread() const {
        return Window && Queue == MessageQueue::OfThisThread();
    }
};

/// The windows of the process and the `CWnd` objects attached to them. Handles are counted up and
/// never used again, so an old one names no window. May be used from any thread.
class WindowTable {
public:
    WindowTable() = default;
    WindowTable(const WindowTable&) = delete;
    WindowTable& operator=(const WindowTable&) = delete;
    ~WindowTable();

    [[nodiscard]] static WindowTable& Get() noexcept;

    /// A new window of the calling thread; a control has a parent, its number there and its name
    /// for people.
    [[nodiscard]] HWND Add(HWND parent, int id, std::string name = {});
    /// A new window that ends with its object.
    void AddOwned(CWnd* owner);
    /// Ends a window and its controls: their objects have none afterwards, and the messages that
    /// wait for them are dropped.
    void Remove(HWND window);
    /// Ends the window that the object owns; false when it owns none.
    bool RemoveOwned(const CWnd* owner);

    [[nodiscard]] bool Has(HWND window);
    [[nodiscard]] HWND Parent(HWND window);
    [[nodiscard]] int Id(HWND window);
    [[nodiscard]] std::string Name(HWND window);
    [[nodiscard]] HWND Child(HWND parent, int id);
    [[nodiscard]] MessageTarget Target(HWND window);

    /// The attached object, or one made up for the window.
    [[nodiscard]] CWnd* Wrapper(HWND window);
    bool Attach(HWND window, CWnd* wrapper);
    void Detach(const CWnd* wrapper);

private:
    struct Record {
        HWND Parent = nullptr;
        int Id = 0;
        CWnd* Attached = nullptr;
        bool IsOwned = false;  ///< The window ends with the attached object.
        std::unique_ptr<CWnd> MadeUp = nullptr;
        std::shared_ptr<MessageQueue> Queue = MessageQueue::OfThisThread();
        std::string Name = {};
    };

    // These are for callers that hold the lock.
    [[nodiscard]] Record* Find(HWND window);
    HWND Insert(Record record);
    void Erase(HWND window);
    [[nodiscard]] static CWnd* WrapperOf(Record& record, HWND window);

    std::mutex m_Lock;
    std::unordered_map<HWND, Record> m_Records;
    std::uintptr_t m_LastHandle = 0;
};

}  // namespace PLATFORM::detail
