// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/detail/message_targets.h>

#include <unordered_map>

namespace PLATFORM {

namespace {

struct MessageTargets {
    std::mutex Lock;
    std::unordered_map<HWND, MessageTarget> Targets;
};

[[gnu::init_priority(101)]] MessageTargets all;

}  // namespace

void AddMessageTarget(HWND handle, CWnd* window) {
    MessageTarget target{window, MessageQueue::OfThisThread()};
    const std::lock_guard lock(all.Lock);
    all.Targets[handle] = std::move(target);
}

MessageTarget FindMessageTarget(HWND handle) {
    const std::lock_guard lock(all.Lock);
    const auto found = all.Targets.find(handle);
    return found == all.Targets.end() ? MessageTarget() : found->second;
}

void RemoveMessageTarget(HWND handle) {
    std::unique_lock lock(all.Lock);
    const auto node = all.Targets.extract(handle);
    lock.unlock();
    if (node) {
        node.mapped().Queue->Drop(handle);
    }
}

}  // namespace PLATFORM
