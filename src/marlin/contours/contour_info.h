// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

class Section;

/// Settings of the drawing of contours, and of their smoothing and labels. By default drawn, with
/// a label spacing of 20, no suppression, no smoothing window, one pass, and labels at the optimum
/// angle. Nothing is checked; units and effect belong to the host's contouring.
///
/// @code
/// ContourInfo contours;
/// contours.SetLabelOrientation(ContourInfo::LowToHigh);
/// Section section("Contours");
/// contours.Write(section);
/// assert(section["LabelOrientation"].GetValue() == "LowToHigh");
/// @endcode
class MARLIN_API ContourInfo {
public:
    /// How contour labels are turned.
    enum label_orientation : int {
        OptimumTextAngle = 0,  ///< to be read from below, as far as the contour lets them
        LowToHigh = 1,         ///< their tops point to the higher side
        HighToLow = 2,         ///< their tops point to the lower side
    };

    ContourInfo() = default;
    ContourInfo(const ContourInfo&) = default;
    ContourInfo& operator=(const ContourInfo&) = default;
    virtual ~ContourInfo();

    [[nodiscard]] bool GetEnableContouring() const noexcept { return m_EnableContouring; }
    /// The distance between labels along a contour.
    [[nodiscard]] float GetLabelSpacing() const noexcept { return m_LabelSpacing; }
    /// 0 disables suppression.
    [[nodiscard]] double GetSuppressionLength() const noexcept { return m_SuppressionLength; }
    /// Should be 0 to 8.
    [[nodiscard]] int GetSmoothingWindow() const noexcept { return m_SmoothingWindow; }
    [[nodiscard]] int GetSmoothingPasses() const noexcept { return m_SmoothingPasses; }
    [[nodiscard]] label_orientation GetLabelOrientation() const noexcept {
        return m_LabelOrientation;
    }

    void SetEnableContouring(bool enable) noexcept { m_EnableContouring = enable; }
    void SetLabelSpacing(float spacing) noexcept { m_LabelSpacing = spacing; }
    void SetSuppressionLength(double length) noexcept { m_SuppressionLength = length; }
    void SetSmoothingWindow(int window) noexcept { m_SmoothingWindow = window; }
    void SetSmoothingPasses(int passes) noexcept { m_SmoothingPasses = passes; }
    void SetLabelOrientation(label_orientation orientation) noexcept {
        m_LabelOrientation = orientation;
    }

    /// Compares spacing and suppression length by `MATH::Equal`, all other fields exactly.
    bool operator==(const ContourInfo& other) const noexcept;

    /// Returns true. Without a readable key a field stays as it was, but the orientation becomes
    /// `OptimumTextAngle`; case matters in its text. The spacing is also read from the older key
    /// "LabelSpacing", over which "ContourLabelSpacing" wins.
    bool Read(const Section& section);
    /// Sets six keys, which replace keys of those names; returns true. An orientation that is none
    /// of the three is written as an empty text.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, with the older one, and the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    bool m_EnableContouring = true;
    float m_LabelSpacing = 20.0F;
    double m_SuppressionLength = 0.0;
    int m_SmoothingWindow = 0;
    int m_SmoothingPasses = 1;
    label_orientation m_LabelOrientation = OptimumTextAngle;
};
