// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/dialog_template.h>

#include <algorithm>

namespace PLATFORM {

namespace {

constinit std::span<const DialogTemplate> current;

}  // namespace

void SetDialogTemplates(std::span<const DialogTemplate> templates) noexcept {
    current = templates;
}

const DialogTemplate* FindDialogTemplate(unsigned int id) noexcept {
    const auto found = std::ranges::find(current, id, &DialogTemplate::Id);
    return found == current.end() ? nullptr : &*found;
}

}  // namespace PLATFORM
