// SPDX-License-Identifier: MIT
#include <marlin/settings/rare_text.h>

// Before all keys and sections that are made at load.
[[gnu::init_priority(101)]] const std::string RareText::emptyText;
