// SPDX-License-Identifier: MIT
#include <marlin/base/data_search.h>
#include <marlin/base/detail/item_text.h>
#include <marlin/platform/kernel/extension_module.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

using std::filesystem::path;

path FolderOfKind(unsigned int kind) {
    switch (kind) {
        case 4:
            return "contours";
        case 23:
            return "keywords";
        default:
            return {};
    }
}

std::string_view Environment(const char* name, std::string_view otherwise = {}) {
    const char* const value = std::getenv(name);
    return value && *value != '\0' ? std::string_view(value) : otherwise;
}

path PersonalFolder() {
    path folder = Environment("XDG_DATA_HOME");
    const path home = Environment("HOME");
    if (folder.is_absolute()) {
        return folder;
    }
    return home.is_absolute() ? home / ".local/share" : path();
}

// Beside the library first: an installation that was moved as a whole still finds its data.
path InstalledFolder() {
    const std::string own = PLATFORM::ThisModuleFolder();
    const path beside = (path(own) / MARLIN_DATA_BESIDE_LIBRARY).lexically_normal();
    std::error_code error;
    return std::filesystem::is_directory(beside, error) ? beside : path(MARLIN_DATA_INSTALLED);
}

std::vector<path> DataFolders() {
    std::vector<path> folders;
    if (const path first = Environment("MARLIN_DATA_DIR"); !first.empty()) {
        std::error_code error;
        folders.push_back(std::filesystem::absolute(first, error));
    }
    std::vector<std::string> roots;
    roots.push_back(PersonalFolder());
    MARLINSUITE::detail::SplitItems(Environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share"),
                                    ':', false, roots);
    for (const path root : roots) {
        if (root.is_absolute()) {
            folders.push_back(root / "marlin");
        }
    }
    folders.push_back(InstalledFolder());
    return folders;
}

// The path in the first data folder that has it, or else in the first data folder.
CString Find(const path& wanted) {
    const std::vector<path> folders = DataFolders();
    path chosen = folders.front();
    for (const path& folder : folders) {
        std::error_code error;
        if (std::filesystem::exists(folder / wanted, error)) {
            chosen = folder;
            break;
        }
    }
    return CString((chosen / wanted).c_str());
}

}  // namespace

const DataSearch& DataSearch::GetDataSearch() noexcept {
    static constinit DataSearch search;
    return search;
}

bool DataSearch::GetFilePath(unsigned int kind, CString& folder) const {
    const path wanted = FolderOfKind(kind);
    if (!wanted.empty()) {
        folder = Find(wanted);
    }
    return !wanted.empty();
}

bool DataSearch::GetFullPath(unsigned int kind, CString& name) const {
    const path wanted = FolderOfKind(kind);
    if (wanted.empty() || name.IsEmpty()) {
        return false;
    }
    name = Find(wanted / name.GetString());
    return true;
}
