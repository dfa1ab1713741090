// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/settings/rare_text.h>

// Before all keys and sections that are made at load.
[[gnu::init_priority(MARLINSUITE::detail::LoadValues)]] const std::string RareText::emptyText;
