// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>

#include <cstdlib>
#include <mutex>
#include <vector>

namespace MARLINSUITE::detail {

namespace {

constinit std::mutex listLock;
constinit std::vector<std::shared_ptr<void>>* list = nullptr;
constinit bool processEnds = false;

[[gnu::destructor]] void Unload() {
    const std::unique_ptr<std::vector<std::shared_ptr<void>>> kept(processEnds ? nullptr : list);
    while (kept && !kept->empty()) {
        kept->pop_back();
    }
}

}  // namespace

void KeepUntilUnload(std::shared_ptr<void> object) {
    const std::lock_guard lock(listLock);
    if (!list) {
        list = std::make_unique<std::vector<std::shared_ptr<void>>>().release();
    }
    list->push_back(std::move(object));
    // Called before the function above when the process ends, after it when the library is
    // unloaded.
    static_cast<void>(std::atexit([] { processEnds = true; }));
}

}  // namespace MARLINSUITE::detail
