// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

namespace MARLINSUITE::detail {

/// Keeps an object until the library is unloaded (`dlclose`); those kept last go first. When the
/// process ends it is left alone: static objects of hosts and threads that still run may use it to
/// the very end. For any thread.
void KeepUntilUnload(std::shared_ptr<void> object);

/// The object of that type that the whole process has, made at the first call.
template <class Object>
[[nodiscard]] Object& ProcessObject() {
    static Object& object = []() -> Object& {
        auto made = std::make_shared<Object>();
        Object& kept = *made;
        KeepUntilUnload(std::move(made));
        return kept;
    }();
    return object;
}

}  // namespace MARLINSUITE::detail
