// SPDX-License-Identifier: MIT
#include <marlin/runtime/thread_object.h>

void ThreadObject::CancelFunction() {}

ThreadObject::~ThreadObject() = default;
