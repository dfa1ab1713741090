// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/fonts/font_types.h>
#include <marlin/records/text_info.h>

#include <cstddef>
#include <map>
#include <utility>

/// Computes how much larger than its visible characters a font must be asked for, because the
/// height of a font includes leading and descent. The factor and the font's outline metrics are
/// measured once in the process for each font name (ignoring case), size and style, and kept for
/// its life. One thread at a time.
/// @code
/// TextInfo style;  // Arial, characters 2.5 units high
/// const float factor = TextHeightFactComp::Get()(style);
/// const float fontHeight = style.Size() * factor;  // about 3.7 with Arial
/// assert(factor == 0.0F || fontHeight > style.Size());
/// @endcode
class MARLIN_API TextHeightFactComp {
public:
    TextHeightFactComp(const TextHeightFactComp&) = default;
    /// Adds the entries of the other one, so that references to the metrics stay valid.
    TextHeightFactComp& operator=(const TextHeightFactComp& other);
    ~TextHeightFactComp() = default;

    /// The one instance of the process, made empty at the first call.
    [[nodiscard]] static TextHeightFactComp& Get();

    /// The font's size divided by the height of its cell without the descent and both leadings. 0
    /// for a style that cannot be measured: one without an outline font, or whose size is not a
    /// number, 0 in logical units or too large for them. Such a style is tried again at each call.
    [[nodiscard]] float operator()(const TextInfo& ti);
    /// All zeros for a style that cannot be measured. The reference is valid as long as the
    /// instance, also when `FontCatalog` takes other fonts, which are then measured anew.
    [[nodiscard]] const OUTLINETEXTMETRICA& GetMetrics(const TextInfo& ti);

private:
    using Measures = std::pair<float, OUTLINETEXTMETRICA>;
    // Of the fonts that there were: `FontCatalog` counts its changes.
    using Entries = std::map<std::pair<std::size_t, TextInfo>, Measures>;

    TextHeightFactComp() = default;

    /// Measures the style when it is not known yet. Null when it cannot be measured.
    const Measures* Find(const TextInfo& ti);
    /// The end when the style cannot be measured.
    Entries::iterator AddEntry(const TextInfo& ti);

    Entries m_Entries;
};
