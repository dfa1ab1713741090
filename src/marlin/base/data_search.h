// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

/// Finds the suite's data files. Kind 4, contour definitions and color tables, lies in
/// "contours", kind 23, keywords, in "keywords". These folders are looked for, in this order,
/// in $MARLIN_DATA_DIR, in "marlin" of $XDG_DATA_HOME (~/.local/share) and of each folder of
/// $XDG_DATA_DIRS (/usr/local/share:/usr/share), and in share/marlin beside the library, or
/// where it was configured to be installed. The environment is read at each look-up; relative
/// folders in the XDG variables are ignored. The first path that exists is the result; when
/// none does, the first candidate.
class MARLIN_API DataSearch {
public:
    DataSearch(const DataSearch&) = delete;
    DataSearch& operator=(const DataSearch&) = delete;

    [[nodiscard]] static const DataSearch& GetDataSearch() noexcept;

    /// The folder of a kind, without an ending "/". False, and the target unchanged, for an
    /// unknown kind.
    bool GetFilePath(unsigned int kind, CString& folder) const;
    /// Turns a file's name into its full path; a full path stays. False, and the name
    /// unchanged, for an unknown kind or an empty name.
    bool GetFullPath(unsigned int kind, CString& name) const;

private:
    constexpr DataSearch() noexcept = default;
};
