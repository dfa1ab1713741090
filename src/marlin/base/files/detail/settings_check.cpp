// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/settings_check.h>
#include <marlin/base/files/settings_grammar.h>

namespace MARLINSUITE::detail {

namespace {

bool HasLineFeed(std::string_view text) {
    return text.find('\n') != std::string_view::npos;
}

std::string Quoted(std::string_view kind, std::string_view name) {
    return std::string(kind).append(" \"").append(name) + '"';
}

}  // namespace

void SettingsCheck::BeginSection(std::string_view name, std::string_view comments) {
    const char* const reason = name.empty()                               ? "no name"
                               : HasLineFeed(name)                        ? "line end in the name"
                               : name.find(']') != std::string_view::npos ? "\"]\" in the name"
                               : HasLineFeed(comments) ? "line end in the comment"
                                                       : nullptr;
    m_Section = name;
    if (reason && m_Reason.empty()) {
        m_Reason = Quoted("section", name) + ": " + reason;
    }
}

void SettingsCheck::AddKey(std::string_view name, std::string_view value,
                           std::string_view comments) {
    const char* const reason = HasLineFeed(name) ? "line end in the name"
                               : TrimmedSettingsText(name).starts_with('[')
                                   ? "\"[\" begins the name"
                               : name.find(';') != std::string_view::npos ? "\";\" in the name"
                               : name.find('=') != std::string_view::npos ? "\"=\" in the name"
                               : !name.empty() && HasLineFeed(value)      ? "line end in the value"
                               : HasLineFeed(comments) ? "line end in the comment"
                                                       : nullptr;
    if (reason && m_Reason.empty()) {
        m_Reason = Quoted("section", m_Section) + ", " + Quoted("key", name) + ": " + reason;
    }
}

}  // namespace MARLINSUITE::detail
