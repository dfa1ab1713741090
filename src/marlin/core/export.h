// SPDX-License-Identifier: MIT
#pragma once

/// Marks what the shared library makes visible to its hosts; everything else stays hidden.
#define MARLIN_API __attribute__((visibility("default")))
