// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/window_types.h>

#include <string>

namespace PLATFORM {

/// A message box that is asked for: its buttons and icon as the framework's MB_ numbers.
struct MessageRequest {
    CString Text;
    CString Caption;
    UINT Type = 0;
};

/// A file dialog that is asked for.
struct FileRequest {
    bool Open = true;
    CString DefaultExtension;  ///< Added to a typed name without one.
    /// Pairs of a description and a pattern, each ended by a null character; one more ends it.
    std::string Filter;
    CString InitialFolder;
    UINT Flags = 0;  ///< The framework's OFN_ numbers.
    CString FileName;
};

/// A color dialog that is asked for.
struct ColorRequest {
    COLORREF Color = 0;
    UINT Flags = 0;  ///< The framework's CC_ numbers.
};

}  // namespace PLATFORM
