// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

namespace PLATFORM::detail {

/// An object of Qt that its parent owns: the last argument, or whatever it is added to.
template <typename Object, typename... Arguments>
Object* Make(Arguments&&... arguments) {
    return std::make_unique<Object>(std::forward<Arguments>(arguments)...).release();
}

/// An object that lives until the process has ended. The statics of Qt, which come and go in an
/// order of their own, and dialogs that are static objects are destroyed before it.
template <typename Object>
Object* MakeForever() {
    return std::make_unique<Object>().release();
}

}  // namespace PLATFORM::detail
