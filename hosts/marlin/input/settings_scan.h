// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace HOST {

/// Something about a line of a settings file that reading it does not tell.
struct SettingsRemark {
    enum KIND {
        WARNING,
        ERROR,  ///< Two keys of one name.
        LOSS,   ///< A warning: what saving the file again would drop.
    };
    int Line = 0;
    KIND Kind = WARNING;
    std::string Cause;
};

/// The lines of a settings file, looked at one by one. It ends with the line at which reading
/// the file fails.
struct SettingsScan {
    /// What makes the file no settings file at all; then nothing else is said.
    std::string Fault;
    int FaultLine = 0;

    /// The bytes before the first section header. Reading ignores them.
    std::size_t PreambleSize = 0;
    /// The lines of the headers.
    std::vector<int> HeaderLines;
    /// Where the first section of the name that stands twice begins; 0 when none does.
    int FirstOfDuplicate = 0;
    std::vector<SettingsRemark> Remarks;

    [[nodiscard]] static SettingsScan Of(std::string_view text);
    [[nodiscard]] const SettingsRemark* FirstLoss() const noexcept;
};

}  // namespace HOST
