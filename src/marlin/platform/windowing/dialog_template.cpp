// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/dialog_template.h>

#include <algorithm>

namespace PLATFORM {

const DialogTemplate* FindDialogTemplate(unsigned int id) noexcept {
    const auto found = std::ranges::find(DefaultDialogTemplates, id, &DialogTemplate::Id);
    return found == DefaultDialogTemplates.end() ? nullptr : &*found;
}

}  // namespace PLATFORM
