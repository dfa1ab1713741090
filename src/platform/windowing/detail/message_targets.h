// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/detail/message_queue.h>

#include <memory>

class CWnd;

namespace PLATFORM {

/// The window that a handle names and the queue of the thread that made it; null for none.
struct MessageTarget {
    CWnd* Window = nullptr;
    std::shared_ptr<MessageQueue> Queue;

    [[nodiscard]] bool IsOfThisThread() const {
        return Window && Queue == MessageQueue::OfThisThread();
    }
};

/// From now on messages reach a window of the calling thread under the handle, which is new.
void AddMessageTarget(HWND handle, CWnd* window);
[[nodiscard]] MessageTarget FindMessageTarget(HWND handle);
/// No message reaches it any more; those that wait for it are dropped.
void RemoveMessageTarget(HWND handle);

}  // namespace PLATFORM
