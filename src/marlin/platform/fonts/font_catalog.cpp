// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_store.h>
#include <marlin/platform/fonts/font_catalog.h>

#include <utility>

namespace PLATFORM {

using detail::FontStore;

std::vector<std::string> FontCatalog::Families() {
    std::vector<std::string> families;
    for (detail::InstalledFont& font : FontStore::Families()) {
        families.push_back(std::move(font.Family));
    }
    return families;
}

bool FontCatalog::Find(const char* faceName, int weight, bool italic, FontMatch& match) {
    return FontStore::Match({faceName ? faceName : "", weight, italic}, match);
}

FontCosts FontCatalog::Costs() noexcept {
    return FontStore::Costs();
}

void FontCatalog::SetFolders(const std::vector<std::string>& folders) {
    FontStore::SetFolders(folders);
}

}  // namespace PLATFORM
