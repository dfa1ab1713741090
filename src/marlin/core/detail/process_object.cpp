// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/core/detail/process_object.h>

#include <mutex>
#include <vector>

namespace MARLINSUITE::detail {

namespace {

constinit std::mutex listLock;
constinit std::vector<std::shared_ptr<void>>* list = nullptr;
constinit bool processEnds = false;

// At the end of the process static objects are destroyed before the function below runs, and after
// it when the library is unloaded.
struct ProcessEnd {
    ~ProcessEnd() { processEnds = true; }
};
[[maybe_unused, gnu::init_priority(LoadStartUp)]] const ProcessEnd processEnd;

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
}

}  // namespace MARLINSUITE::detail
