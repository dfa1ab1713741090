// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/fonts/font_types.h>
#include <marlin/records/text_info.h>

#include <map>
#include <utility>

/// How much larger than its visible characters a font must be asked for, and the font's outline
/// metrics, measured once for each text style of the process: for each font name (ignoring case),
/// size and style, in the order of `TextInfo`. Entries are only ever added. One thread at a time.
class MARLIN_API TextHeightFactComp {
public:
    /// The one instance, made empty when it is first asked for.
    [[nodiscard]] static TextHeightFactComp& Get();

    /// The font's size divided by the height that is left of its cell without the descent and both
    /// leadings. 0 for a style that cannot be measured, which is tried again the next time: one
    /// without an outline font, or with a size that is no number, nothing in logical units or too
    /// large for the platform.
    [[nodiscard]] float operator()(const TextInfo& ti);
    /// Metrics of all zeros for a style that cannot be measured. The reference stays good for the
    /// life of the process.
    [[nodiscard]] const OUTLINETEXTMETRICA& GetMetrics(const TextInfo& ti);

private:
    using Measures = std::pair<float, OUTLINETEXTMETRICA>;
    using Entries = std::map<TextInfo, Measures>;

    TextHeightFactComp() = default;

    /// The style's measures, taken and added if there are none; null where they cannot be.
    const Measures* Find(const TextInfo& ti);
    /// The end where the style cannot be measured.
    Entries::iterator AddEntry(const TextInfo& ti);

    Entries m_Entries;
};
