// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/records/record_field.h>

class Section;

/// Whether contours are drawn and how their lines are smoothed and labelled: by default drawn,
/// with a label spacing of 20, no suppression, no smoothing window and one pass, labels at the
/// optimum angle. Nothing is checked; units and effect belong to the host's contouring.
class MARLIN_API ContourInfo {
public:
    /// How contour labels are turned.
    enum label_orientation : int {
        OptimumTextAngle = 0,
        LowToHigh = 1,
        HighToLow = 2,
    };

    ContourInfo() = default;
    ContourInfo(const ContourInfo&) = default;
    ContourInfo& operator=(const ContourInfo&) = default;
    virtual ~ContourInfo();

    [[nodiscard]] bool GetEnableContouring() const noexcept { return m_EnableContouring; }
    /// Along a contour.
    [[nodiscard]] float GetLabelSpacing() const noexcept { return m_LabelSpacing; }
    /// 0 disables suppression.
    [[nodiscard]] double GetSuppressionLength() const noexcept { return m_SuppressionLength; }
    /// Meant to lie in 0 to 8.
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

    /// Spacing and suppression length within the tolerance of `MATH::Equal`, all else exactly.
    bool operator==(const ContourInfo& other) const noexcept;

    /// Keys that are missing or unreadable keep their fields, but the orientation is reset to
    /// `OptimumTextAngle` by a missing or unknown text; case matters in it. The spacing is also
    /// read from the older key "LabelSpacing", over which "ContourLabelSpacing" wins. True.
    bool Read(const Section& section);
    /// Sets six keys, in the place of keys of those names; an orientation that is none of the
    /// three writes an empty text. True.
    bool Write(Section& section) const;
    /// The keys in the order of `Write`, the older one among them, with the values of this record.
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
