// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/keywords/predefined_keywords.h>

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] const std::string PredefinedKeywordKeys[9] = {
    "plot project",   "current date", "current time",   "coordinate system",  "project name",
    "project number", "project task", "project client", "project contractor",
};

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] const std::string PredefinedPlotKeywordKeys[1] = {
    "plot name"};
