// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace MARLINSUITE::detail {

/// Looks for what a settings file cannot hold, because it would read back as other sections or
/// keys. Takes sections and keys as `SettingsWriter` does; the value of a key without a name, which
/// is not written, may be anything.
class SettingsCheck {
public:
    void BeginSection(std::string_view name, std::string_view comments);
    void AddKey(std::string_view name, std::string_view value, std::string_view comments);

    /// The first reason against writing, with section and key; empty for none.
    [[nodiscard]] const std::string& Reason() const noexcept { return m_Reason; }

private:
    std::string_view m_Section;
    std::string m_Reason;
};

}  // namespace MARLINSUITE::detail
