// SPDX-License-Identifier: MIT
#include <marlin/base/files/file_name.h>

#include <algorithm>

namespace {

std::string_view NameOf(std::string_view path) noexcept {
    return path.substr(path.rfind('/') + 1);  // npos + 1 is 0
}

// The name without its extension. Dots that begin a name are part of it.
std::string_view TitleOf(std::string_view name) noexcept {
    const std::size_t first = std::min(name.find_first_not_of('.'), name.size());
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos || dot < first ? name : name.substr(0, dot);
}

}  // namespace

void FileName::SetExtension(const CString& extension) {
    const std::string_view path = m_Path.View();
    const std::string_view name = NameOf(path);
    if (name.find_first_not_of('.') == std::string_view::npos) {
        return;
    }
    const std::string_view title = TitleOf(name);
    std::string changed(path.substr(0, path.size() - name.size() + title.size()));
    if (!extension.IsEmpty()) {
        changed.append(extension.View().starts_with('.') ? "" : ".").append(extension.View());
    }
    m_Path = CString(std::string_view(changed));
}

CString GetTitleFromPath(const CString& path) {
    return CString(TitleOf(NameOf(path.View())));
}
