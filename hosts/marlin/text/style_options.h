// SPDX-License-Identifier: MIT
#pragma once

#include "command.h"
#include <marlin/records/text_info.h>

#include <string>
#include <string_view>

namespace HOST {

/// The options that choose a text style. Those that were not given are empty and leave the
/// style's defaults.
struct StyleOptions {
    std::string Font;
    std::string Size;
    bool IsBold = false;
    bool IsItalic = false;
    std::string Justification;
    std::string Rotation;

    void Declare(Options& options);
    /// Fails for a value that no style takes.
    void ApplyTo(TextInfo& style) const;
};

/// Reads a number above 0 into the target; leaves it for an empty text. Fails for any other.
void ParseLength(std::string_view option, const std::string& text, float& length);
/// The same for a whole number from 0 to `largest`.
void ParseCode(std::string_view option, const std::string& text, int largest, int& code);

}  // namespace HOST
