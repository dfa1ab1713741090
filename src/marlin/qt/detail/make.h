// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

namespace PLATFORM {

/// An object of Qt that is given to its parent, the last argument: that one owns it.
template <typename Object, typename... Arguments>
Object* Make(Arguments&&... arguments) {
    return std::make_unique<Object>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace PLATFORM
