// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace PLATFORM {

/// The face that stands for one that was asked.
struct FontMatch {
    /// UTF-8, as the face itself names its family and style.
    std::string Family;
    std::string Style;
    /// The file, and the number of the face in it.
    std::string Path;
    int Index = 0;
    /// Whether the family has another name than the one that was asked.
    bool Substituted = false;
};

/// The work that finding fonts has cost so far in this process.
struct FontCosts {
    std::size_t FileOpens = 0;
    std::size_t Queries = 0;
};

/// Which fonts there are, and which one a name stands for. Faces found are kept for the process,
/// so each style is looked up and each file read once.
class MARLIN_API FontCatalog {
public:
    /// The families that can be measured, sorted without regard to case; UTF-8.
    [[nodiscard]] static std::vector<std::string> Families();
    /// The face that a font of this name (Windows-1252), weight (400 normal, 700 bold) and slant
    /// is measured with. False, and the target unchanged, when there is none.
    [[nodiscard]] static bool Find(const char* faceName, int weight, bool italic, FontMatch& match);
    [[nodiscard]] static FontCosts Costs() noexcept;

    /// From now on fonts come from the files in these folders alone, or again from the system.
    /// Fonts made before keep their faces. Nothing else may use fonts meanwhile.
    static void SetFolders(const std::vector<std::string>& folders);
    static void UseSystemFonts();
};

}  // namespace PLATFORM
