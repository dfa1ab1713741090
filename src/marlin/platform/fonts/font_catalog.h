// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace PLATFORM {

/// A face that was found for the name of a font.
struct FontMatch {
    std::string Family;  ///< As the face itself names it, UTF-8.
    std::string Style;   ///< Likewise, such as "Bold Italic".
    std::string Path;    ///< Of the file.
    int Index = 0;       ///< The number of the face in the file, from 0.
    /// True when no family of the name was found and this is a substitute.
    bool Substituted = false;
};

/// How much work it has been to find fonts, since the process began.
struct FontCosts {
    std::size_t FileOpens = 0;  ///< Font files that were read.
    std::size_t Queries = 0;    ///< Look-ups in the system's list of fonts.
};

/// Lists the fonts that can be measured, and finds the one that a name is measured with. A face
/// that was found is kept for the process: a name is looked up once, and a font file read once.
/// Any thread may ask.
/// @code
/// PLATFORM::FontMatch match;
/// if (PLATFORM::FontCatalog::Find("Arial", 700, false, match)) {
///     std::string text = match.Family + ' ' + match.Style;  // such as "Liberation Sans Bold"
///     text += match.Substituted ? " in place of Arial" : "";
/// }
/// @endcode
class MARLIN_API FontCatalog {
public:
    /// The families with Latin letters that are there now, sorted without regard to case; UTF-8.
    [[nodiscard]] static std::vector<std::string> Families();
    /// Finds the face for a font of this name, weight (400 normal, 700 bold) and
    /// slant. Returns false, and leaves the target as it was, when there is none.
    [[nodiscard]] static bool Find(const char* faceName, int weight, bool italic, FontMatch& match);
    [[nodiscard]] static FontCosts Costs() noexcept;

    /// Takes fonts from the files in these folders alone, or from the system for none. Fonts made
    /// before keep their faces, and metrics handed out stay readable; texts are measured anew. No
    /// other thread may use fonts during the call.
    static void SetFolders(const std::vector<std::string>& folders);
};

}  // namespace PLATFORM
