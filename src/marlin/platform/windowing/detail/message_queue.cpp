// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/per_thread.h>
#include <marlin/platform/windowing/detail/message_queue.h>

#include <algorithm>

namespace PLATFORM::detail {

const std::shared_ptr<MessageQueue>& MessageQueue::OfThisThread() {
    // Shared with the windows of the thread, since those may be posted to after its end.
    struct Queue {
        std::shared_ptr<MessageQueue> Shared = std::make_shared<MessageQueue>();
    };
    return PerThread<Queue>().Shared;
}

void MessageQueue::WakeBy(std::function<void()> wake) {
    const std::lock_guard lock(m_Lock);
    m_Wake = std::move(wake);
}

void MessageQueue::Post(const MSG& message) {
    const std::lock_guard lock(m_Lock);
    m_Messages.push_back(message);
    // Only the queue's own thread waits.
    m_Posted.notify_one();
    if (m_Wake) {
        m_Wake();
    }
}

bool MessageQueue::TakeFirst(MSG& message, const MessageFilter& filter, bool remove) {
    const auto found =
        std::find_if(m_Messages.begin(), m_Messages.end(),
                     [&filter](const MSG& waiting) { return filter.Takes(waiting); });
    if (found == m_Messages.end()) {
        return false;
    }
    message = *found;
    if (remove) {
        m_Messages.erase(found);
    }
    return true;
}

bool MessageQueue::Peek(MSG& message, const MessageFilter& filter, bool remove) {
    const std::lock_guard lock(m_Lock);
    return TakeFirst(message, filter, remove);
}

void MessageQueue::Get(MSG& message, const MessageFilter& filter) {
    std::unique_lock lock(m_Lock);
    m_Posted.wait(lock, [&] { return TakeFirst(message, filter, true); });
}

void MessageQueue::Drop(HWND window) {
    const std::lock_guard lock(m_Lock);
    std::erase_if(m_Messages, [window](const MSG& message) { return message.hwnd == window; });
}

}  // namespace PLATFORM::detail
