// SPDX-License-Identifier: MIT
#pragma once

// Asks fontconfig, at the request of `FontStore` alone, which holds its lock meanwhile.

#include <marlin/platform/fonts/font_catalog.h>

#include <compare>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _FcConfig;

namespace PLATFORM::detail {

/// A font as it is asked for: the family, 400 for the normal weight.
struct FontWish {
    std::string Face;
    int Weight = 400;
    bool Italic = false;

    [[nodiscard]] auto operator<=>(const FontWish& other) const = default;
};

/// A font that is installed. Texts are UTF-8.
struct InstalledFont {
    std::string Family;
    std::string Style;
    int Weight = 400;
    bool Italic = false;
    bool FixedPitch = false;
};

/// The fonts that fontconfig knows.
class FontQuery {
public:
    /// Files in these folders alone, or those of the system for none.
    void SetFolders(const std::vector<std::string>& folders);
    /// Takes note of fonts that came or went; false when there are none.
    bool Refresh();

    /// The font that comes nearest to the wish; `outline` is true when its shapes are outlines.
    [[nodiscard]] std::optional<FontMatch> Match(const FontWish& wish, bool& outline);
    /// The outline fonts with Latin letters, of each family the one of lowest weight and slant;
    /// sorted by family.
    [[nodiscard]] std::vector<InstalledFont> Families();

private:
    struct Deleter {
        void operator()(_FcConfig* configuration) const noexcept;
    };

    bool Prepare();

    std::vector<std::string> m_Folders;
    // Null for the system's.
    std::unique_ptr<_FcConfig, Deleter> m_Configuration;
};

}  // namespace PLATFORM::detail
