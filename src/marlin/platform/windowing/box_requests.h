// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/drawing/point.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/windowing/messages.h>

#include <string>
#include <vector>

// The boxes that a program asks its window system to show.

namespace PLATFORM {

/// A message box.
struct MessageRequest {
    CString Text;
    CString Caption;
    UINT Type = 0;  ///< Buttons and icon, the framework's MB_ numbers.
};

/// A menu that is shown at a place.
struct MenuRequest {
    struct Item {
        /// What is sent when it is chosen; 0 for a line between items.
        int Id = 0;
        /// "&" before a mnemonic; after a tab, the key that does the same.
        CString Text;
        bool IsEnabled = true;
    };
    std::vector<Item> Items;
    POINT Place;  ///< On the screen, in pixels.
};

/// A file dialog.
struct FileRequest {
    bool Open = true;
    CString DefaultExtension;
    /// Pairs of a description and a pattern, each ended by a null character; one more ends it.
    std::string Filter;
    CString InitialFolder;
    UINT Flags = 0;  ///< The framework's OFN_ numbers.
    CString FileName;
};

/// A color dialog.
struct ColorRequest {
    COLORREF Color = 0;
    UINT Flags = 0;  ///< The framework's CC_ numbers.
};

}  // namespace PLATFORM
