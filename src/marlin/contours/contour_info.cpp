// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/contours/contour_info.h>
#include <marlin/records/detail/record_keys.h>

#include <string_view>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

constexpr NamedValue orientations[] = {
    {ContourInfo::OptimumTextAngle, "OptimumTextAngle", "labels at the optimum angle"},
    {ContourInfo::LowToHigh, "LowToHigh", "labels face from low to high"},
    {ContourInfo::HighToLow, "HighToLow", "labels face from high to low"},
};

constexpr NamedValue noSuppression[] = {{0, "", "no contour is suppressed"}};

struct OrientationText {
    ContourInfo::label_orientation& Orientation;

    // A missing key reads as an empty text, which resets the orientation as any unknown one does.
    void Read(const SectionKey& key) {
        Orientation = ContourInfo::OptimumTextAngle;
        // Only the exact text counts, since programs alone write it.
        for (const NamedValue& named : orientations) {
            if (key.GetValue() == named.Text) {
                Orientation = static_cast<ContourInfo::label_orientation>(named.Value);
            }
        }
    }
    void Write(SectionKey& key) const {
        key << "";
        for (const NamedValue& named : orientations) {
            if (Orientation == named.Value) {
                key << named.Text;
            }
        }
    }
    [[nodiscard]] RecordValue Value() const { return Orientation; }
};

}  // namespace

// Not in the header, so that the library alone has the table of virtual functions.
ContourInfo::~ContourInfo() = default;

bool ContourInfo::operator==(const ContourInfo& other) const noexcept {
    return m_SmoothingWindow == other.m_SmoothingWindow &&
           m_SmoothingPasses == other.m_SmoothingPasses &&
           m_LabelOrientation == other.m_LabelOrientation &&
           m_EnableContouring == other.m_EnableContouring &&
           MATH::Equal(static_cast<double>(m_LabelSpacing),
                       static_cast<double>(other.m_LabelSpacing)) &&
           MATH::Equal(m_SuppressionLength, other.m_SuppressionLength);
}

// The comments are those of the files in use, spelling included.
template <class Keys>
void ContourInfo::ForEachKey(const Keys& keys) {
    keys({.Name = "SmoothingWindow",
          .Field = 4,
          .Meaning = "smoothing window, 0 to 8",
          .Comments = "Values between 0 and 8"},
         m_SmoothingWindow);
    // Read first, so that the newer key below wins in a file that has both.
    keys({.Name = "LabelSpacing",
          .Field = 2,
          .Meaning = "distance of the labels along a contour",
          .IsCommon = true,
          .IsOlder = true},
         m_LabelSpacing);
    keys({"ContourLabelSpacing", 2, "distance of the labels along a contour"}, m_LabelSpacing);
    keys({.Name = "SuppressionLength",
          .Field = 3,
          .Meaning = "shorter contours are suppressed",
          .Values = noSuppression,
          .Comments = "A value of 0 disables suppresion"},
         m_SuppressionLength);
    keys({"SmoothingPasses", 5, "smoothing passes"}, m_SmoothingPasses);
    keys({"EnableContouring", 1, "contours are drawn"}, m_EnableContouring);
    keys({"LabelOrientation", 6, "how labels are turned", "", orientations},
         OrientationText{m_LabelOrientation});
}

bool ContourInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool ContourInfo::Write(Section& section) const {
    ContourInfo(*this).ForEachKey(KeyReplacer(section));
    return true;
}

RecordFields ContourInfo::Fields() const {
    RecordFields fields;
    ContourInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
