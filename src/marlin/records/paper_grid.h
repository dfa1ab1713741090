// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>
#include <marlin/geometry/point_2d.h>
#include <marlin/records/record_field.h>

class Section;

/// The grid of a plot's paper to which positions snap: its steps, one of its points, whether it is
/// shown and whether positions snap to it. In paper units; by default steps of 1 from (0, 0), shown
/// and snapping. Steps are never negative; the setters keep them at 1 or above, the constructor and
/// `Read` take smaller ones as well.
///
/// @code
/// const PaperGrid grid(10.0, 5.0);
/// const GTL::Point2D<double> snapped = grid.SnapToGrid({14.9, 13.0});
/// assert(snapped.x == 10.0 && snapped.y == 15.0);
/// @endcode
class MARLIN_API PaperGrid {
public:
    /// Steps of 1 from (0, 0).
    PaperGrid() noexcept : PaperGrid(1.0) {}
    /// Stores the absolute values of the steps.
    explicit PaperGrid(double xStep, double yStep = 1.0, const GTL::Point2D<float>& origin = {},
                       bool snapOn = true, bool visible = true) noexcept;
    PaperGrid(const PaperGrid&) = default;
    PaperGrid(PaperGrid&&) = default;
    PaperGrid& operator=(const PaperGrid&) = default;
    PaperGrid& operator=(PaperGrid&&) = default;
    virtual ~PaperGrid();

    /// Never negative.
    [[nodiscard]] double XStep() const noexcept { return m_XStep; }
    /// Never negative.
    [[nodiscard]] double YStep() const noexcept { return m_YStep; }
    /// One of the points of the grid, not checked.
    [[nodiscard]] const GTL::Point2D<float>& Origin() const noexcept { return m_Origin; }
    /// Whether the grid is drawn.
    [[nodiscard]] bool Visible() const noexcept { return m_Visible; }
    /// Whether the host is to snap positions.
    [[nodiscard]] bool SnapOn() const noexcept { return m_SnapOn; }
    /// The nearest point of the grid; halfway between two lines, that of the line farther from the
    /// grid's own point. `SnapOn()` plays no part. A coordinate stays as it is where the grid has
    /// no finite line for it: with a step of 0, or one too small or too great, or an origin that is
    /// not finite. So the result of a finite point is finite.
    [[nodiscard]] GTL::Point2D<double> SnapToGrid(const GTL::Point2D<double>& point) const noexcept;

    /// Stores the absolute value, or 1 when that is less or not a number.
    void XStep(double step) noexcept;
    /// Stores the absolute value, or 1 when that is less or not a number.
    void YStep(double step) noexcept;
    /// Whether the grid is to be drawn.
    void Visible(bool visible) noexcept { m_Visible = visible; }
    /// Whether the host is to snap positions.
    void SnapOn(bool on) noexcept { m_SnapOn = on; }
    /// Shows a hidden grid and hides a shown one.
    void ToggleVisible() noexcept { m_Visible = !m_Visible; }

    /// Returns success. A key that is missing or unreadable leaves its field as it was; steps lose
    /// their sign.
    ErrorString Read(const Section& section);
    /// Appends six keys, whether or not the section has keys of those names; returns success.
    ErrorString Write(Section& section) const;
    /// The keys in the order of `Write`, with the values of this record.
    [[nodiscard]] MARLINSUITE::RecordFields Fields() const;

private:
    template <class Keys>
    void ForEachKey(const Keys& keys);

    double m_XStep;
    double m_YStep;
    GTL::Point2D<float> m_Origin;
    bool m_SnapOn;
    bool m_Visible;
};
