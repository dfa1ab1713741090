// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace HOST {

/// A remark about a line of a settings file, on something that readers pass over in silence.
struct SettingsRemark {
    enum KIND {
        WARNING,
        ERROR,  ///< Two keys of one name.
    };
    int Line = 0;
    KIND Kind = WARNING;
    std::string Cause;
};

/// The findings of a walk over the lines of a settings file. The walk ends at the line at which
/// readers fail.
struct SettingsScan {
    /// Why the file is no settings file at all, or empty. The findings before the fault stay.
    std::string Fault;
    int FaultLine = 0;

    /// The number of bytes before the first section header, which readers ignore.
    std::size_t PreambleSize = 0;
    /// The lines of the section headers.
    std::vector<int> HeaderLines;
    /// The line of the first section whose name comes again, or 0.
    int FirstOfDuplicate = 0;
    std::vector<SettingsRemark> Remarks;

    [[nodiscard]] static SettingsScan Of(std::string_view text);
};

}  // namespace HOST
