// SPDX-License-Identifier: MIT
#include <marlin/runtime/prog_thread_object.h>

ProgThreadObject::~ProgThreadObject() = default;
