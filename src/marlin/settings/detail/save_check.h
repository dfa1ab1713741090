// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/settings/section.h>

#include <deque>
#include <string>

/// What a settings file cannot hold.
namespace MARLINSUITE::detail {

/// The first reason why the text of the sections would read back as other sections or keys, with
/// section and key; empty for none.
[[nodiscard]] std::string ReasonAgainstSaving(const std::deque<Section>& sections);

/// True for a key that is not the same after its line was written and read.
[[nodiscard]] bool LosesSomething(const SectionKey& key);

}  // namespace MARLINSUITE::detail
