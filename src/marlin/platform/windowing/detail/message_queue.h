// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/messages.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace PLATFORM::detail {

/// The messages that a thread asks for: those for a window (null: any) with a number in a range,
/// both ends included (0 and 0: any).
struct MessageFilter {
    HWND Window = nullptr;
    UINT First = 0;
    UINT Last = 0;

    [[nodiscard]] bool Takes(const MSG& message) const noexcept {
        return (!Window || message.hwnd == Window) &&
               ((First == 0 && Last == 0) || (message.message >= First && message.message <= Last));
    }
};

/// The messages posted to the windows of one thread, in their order. Every thread may post; only
/// the thread itself takes.
class MessageQueue {
public:
    /// The calling thread's queue, made on the first call.
    [[nodiscard]] static const std::shared_ptr<MessageQueue>& OfThisThread();

    /// Calls `wake` after each post, on the thread that posted; an empty one calls nothing.
    void WakeBy(std::function<void()> wake);
    void Post(const MSG& message);
    /// Copies the oldest message that the filter takes, and removes it when `remove` is set.
    /// False, and `message` unchanged, for none.
    bool Peek(MSG& message, const MessageFilter& filter, bool remove);
    /// Waits for such a message and removes it.
    void Get(MSG& message, const MessageFilter& filter);
    /// Drops the messages for the window.
    void Drop(HWND window);

private:
    bool TakeFirst(MSG& message, const MessageFilter& filter, bool remove);

    std::mutex m_Lock;
    std::condition_variable m_Posted;
    std::deque<MSG> m_Messages;
    std::function<void()> m_Wake;
};

}  // namespace PLATFORM::detail
