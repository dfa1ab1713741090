// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/form_layout.h>
#include <marlin/qt/detail/make.h>

#include <QDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>
#include <vector>

namespace PLATFORM::detail {

namespace {

// The place of one control on one axis, in dialog units.
struct Extent {
    int From;
    int To;

    [[nodiscard]] bool Meets(const Extent& other) const noexcept {
        return From < other.To && other.From < To;
    }
};

struct Place {
    const ControlTemplate* Control;
    QWidget* Widget;
    Extent X;
    Extent Y;
};

using Places = std::vector<Place>;
using Axis = Extent Place::*;

bool IsButton(const ControlTemplate& control) noexcept {
    return control.Kind == CONTROL::PUSH_BUTTON || control.Kind == CONTROL::DEFAULT_BUTTON;
}

bool Grows(const ControlTemplate& control) noexcept {
    return control.Kind == CONTROL::EDIT || control.Kind == CONTROL::DROP_DOWN_LIST ||
           control.Kind == CONTROL::OWNER_BUTTON || control.Kind == CONTROL::REPORT_LIST;
}

bool IsList(const ControlTemplate& control) noexcept {
    return control.Kind == CONTROL::REPORT_LIST;
}

Places PlacesOf(const DialogTemplate& form, std::span<QWidget* const> widgets) {
    Places places;
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        const ControlTemplate& c = form.Controls[i];
        places.push_back({&c, widgets[i], {c.X, c.X + c.Width}, {c.Y, c.Y + c.Height}});
    }
    // A label is lower than the edit that it names; with the same edges it is centred beside it.
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        const bool beside = places[i].Y.Meets(places[i + 1].Y);
        if (places[i].Control->Kind == CONTROL::LABEL && beside) {
            places[i].Y = places[i + 1].Y;
        }
    }
    return places;
}

// Moves the buttons below everything else out of the places: they are laid out by themselves.
Places TakeLastRow(Places& places) {
    int below = 0;
    for (const Place& place : places) {
        below = IsButton(*place.Control) ? below : std::max(below, place.Y.To);
    }
    const auto last = std::stable_partition(places.begin(), places.end(), [&](const Place& place) {
        return !IsButton(*place.Control) || place.Y.From < below;
    });
    Places row(last, places.end());
    places.erase(last, places.end());
    return row;
}

std::vector<int> LinesOf(const Places& places, Axis axis) {
    std::vector<int> lines;
    for (const Place& place : places) {
        lines.push_back((place.*axis).From);
        lines.push_back((place.*axis).To);
    }
    std::ranges::sort(lines);
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

int LineAt(const std::vector<int>& lines, int position) {
    return static_cast<int>(std::ranges::lower_bound(lines, position) - lines.begin());
}

// The widest gap between two lines that has only controls of a kind in it; -1 for none.
template <typename IsOfKind>
int GrowingGap(const Places& places, Axis axis, const std::vector<int>& lines, IsOfKind isOfKind) {
    int chosen = -1;
    int widest = 0;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const Extent gap{lines[i], lines[i + 1]};
        const auto inGap = [&](const Place& place) { return (place.*axis).Meets(gap); };
        const auto fits = [&](const Place& place) {
            return !inGap(place) || isOfKind(*place.Control);
        };
        if (gap.To - gap.From > widest && std::ranges::any_of(places, inGap) &&
            std::ranges::all_of(places, fits)) {
            chosen = static_cast<int>(i);
            widest = gap.To - gap.From;
        }
    }
    return chosen;
}

// Dialog units are quarters of the font's average width and eighths of its height.
struct Units {
    int Width;
    int Height;

    explicit Units(const QDialog& dialog)
        : Width(dialog.fontMetrics().averageCharWidth()), Height(dialog.fontMetrics().height()) {}
    [[nodiscard]] int X(int units) const noexcept { return units * Width / 4; }
    [[nodiscard]] int Y(int units) const noexcept { return units * Height / 8; }
};

void SetLines(QGridLayout& grid, const Places& places, const Units& units) {
    const std::vector<int> columns = LinesOf(places, &Place::X);
    const std::vector<int> rows = LinesOf(places, &Place::Y);
    for (std::size_t i = 0; i + 1 < columns.size(); ++i) {
        grid.setColumnMinimumWidth(static_cast<int>(i), units.X(columns[i + 1] - columns[i]));
    }
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        grid.setRowMinimumHeight(static_cast<int>(i), units.Y(rows[i + 1] - rows[i]));
    }
    const int column = GrowingGap(places, &Place::X, columns, Grows);
    const int row = GrowingGap(places, &Place::Y, rows, IsList);
    if (column >= 0) {
        grid.setColumnStretch(column, 1);
    }
    if (row >= 0) {
        grid.setRowStretch(row, 1);
    }
    for (const Place& place : places) {
        const int left = LineAt(columns, place.X.From);
        const int top = LineAt(rows, place.Y.From);
        grid.addWidget(place.Widget, top, left, LineAt(rows, place.Y.To) - top,
                       LineAt(columns, place.X.To) - left);
    }
}

void AddButtons(QVBoxLayout& page, const Places& buttons, const Units& units) {
    auto* const row = Make<QHBoxLayout>();
    page.addLayout(row);
    row->addStretch(1);
    for (const Place& button : buttons) {
        button.Widget->setMinimumWidth(units.X(button.X.To - button.X.From));
        row->addWidget(button.Widget);
    }
}

}  // namespace

void LayOut(const DialogTemplate& form, std::span<QWidget* const> widgets, QDialog& dialog) {
    const Units units(dialog);
    Places places = PlacesOf(form, widgets);
    const Places buttons = TakeLastRow(places);
    auto* const page = Make<QVBoxLayout>(&dialog);
    auto* const grid = Make<QGridLayout>();
    page->addLayout(grid, 1);
    // The template's own gaps are lines of the grid too.
    grid->setSpacing(0);
    SetLines(*grid, places, units);
    if (!buttons.empty()) {
        page->addStretch(0);
        page->addSpacing(units.Y(4));
        AddButtons(*page, buttons, units);
    }
    dialog.resize(dialog.sizeHint().expandedTo({units.X(form.Width), units.Y(form.Height)}));
}

}  // namespace PLATFORM::detail
