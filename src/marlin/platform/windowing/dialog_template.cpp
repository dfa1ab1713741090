// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/dialog_template.h>

#include <algorithm>

namespace PLATFORM {

namespace {

constinit std::span<const DialogTemplate> current;

}  // namespace

std::string NameOf(const DialogTemplate& form, std::size_t control) {
    const ControlTemplate& named = form.Controls[control];
    const ControlTemplate* const before = control > 0 ? &form.Controls[control - 1] : nullptr;
    if (!named.SpokenName.empty()) {
        return std::string(named.SpokenName);
    }
    const bool isLabelled = named.Text.empty() && before && before->Kind == CONTROL::LABEL;
    std::string name(isLabelled ? before->Text : named.Text);
    std::erase(name, '&');
    if (name.ends_with(':')) {
        name.pop_back();
    }
    return name;
}

void SetDialogTemplates(std::span<const DialogTemplate> templates) noexcept {
    current = templates;
}

const DialogTemplate* FindDialogTemplate(unsigned int id) noexcept {
    const auto found = std::ranges::find(current, id, &DialogTemplate::Id);
    return found == current.end() ? nullptr : &*found;
}

}  // namespace PLATFORM
