// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/contours/contour_info.h>
#include <marlin/settings/section.h>

#include <array>
#include <cstddef>

namespace {

constexpr std::array<const char*, 3> orientationTexts{"OptimumTextAngle", "LowToHigh", "HighToLow"};

const char* TextOf(ContourInfo::label_orientation orientation) {
    const auto index = static_cast<std::size_t>(orientation);
    return index < orientationTexts.size() ? orientationTexts[index] : "";
}

ContourInfo::label_orientation OrientationOf(const std::string& text) {
    for (std::size_t i = 0; i < orientationTexts.size(); ++i) {
        if (text == orientationTexts[i]) {
            return static_cast<ContourInfo::label_orientation>(i);
        }
    }
    return ContourInfo::OptimumTextAngle;
}

}  // namespace

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

bool ContourInfo::Read(const Section& section) {
    section["SmoothingWindow"] >> m_SmoothingWindow;
    section["LabelSpacing"] >> m_LabelSpacing;
    section["ContourLabelSpacing"] >> m_LabelSpacing;
    section["SuppressionLength"] >> m_SuppressionLength;
    section["SmoothingPasses"] >> m_SmoothingPasses;
    section["EnableContouring"] >> m_EnableContouring;
    m_LabelOrientation = OrientationOf(section["LabelOrientation"].GetValue());
    return true;
}

// The comments are those of the files in use, spelling included.
bool ContourInfo::Write(Section& section) const {
    SectionKey& window = section["SmoothingWindow"];
    window << m_SmoothingWindow;
    window.SetComments("Values between 0 and 8");
    section["ContourLabelSpacing"] << m_LabelSpacing;
    SectionKey& suppression = section["SuppressionLength"];
    suppression << m_SuppressionLength;
    suppression.SetComments("A value of 0 disables suppresion");
    section["SmoothingPasses"] << m_SmoothingPasses;
    section["EnableContouring"] << m_EnableContouring;
    section["LabelOrientation"] << TextOf(m_LabelOrientation);
    return true;
}
