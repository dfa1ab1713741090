// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/free_type.h>
#include <marlin/platform/fonts/detail/glyph_pen.h>

namespace PLATFORM {

namespace {

struct Pen {
    std::vector<OutlineStep>* Steps;
    double X;
};

OutlinePoint PointOf(const FT_Vector& point, const Pen& pen) noexcept {
    return {static_cast<double>(point.x) + pen.X, static_cast<double>(point.y)};
}

int Add(void* pen, OutlineStep::KIND kind, const FT_Vector& to, const FT_Vector& control1,
        const FT_Vector& control2) {
    const Pen& used = *static_cast<Pen*>(pen);
    used.Steps->push_back(
        {kind, PointOf(to, used), PointOf(control1, used), PointOf(control2, used)});
    return 0;
}

int MoveTo(const FT_Vector* to, void* pen) {
    return Add(pen, OutlineStep::MOVE, *to, *to, *to);
}

int LineTo(const FT_Vector* to, void* pen) {
    return Add(pen, OutlineStep::LINE, *to, *to, *to);
}

int ConicTo(const FT_Vector* control, const FT_Vector* to, void* pen) {
    return Add(pen, OutlineStep::CONIC, *to, *control, *control);
}

int CubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* pen) {
    return Add(pen, OutlineStep::CUBIC, *to, *control1, *control2);
}

constexpr FT_Outline_Funcs Steps{MoveTo, LineTo, ConicTo, CubicTo, 0, 0};

}  // namespace

double AppendText(const FontFace& face, std::string_view text, std::vector<OutlineStep>& steps) {
    Pen pen{&steps, 0};
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const FT_Outline* outline = face.Outline(text[i])) {
            const std::size_t before = steps.size();
            // The library only reads the outline, though it does not say so.
            if (FT_Outline_Decompose(const_cast<FT_Outline*>(outline), &Steps, &pen) != 0) {
                steps.resize(before);
            }
        }
        pen.X += static_cast<double>(face.Advance(text.substr(i, 1)));
    }
    return pen.X;
}

void AppendLine(double length, double middle, double thickness, std::vector<OutlineStep>& steps) {
    const double low = middle - thickness / 2;
    const double high = middle + thickness / 2;
    steps.push_back({OutlineStep::MOVE, {0, low}, {}, {}});
    steps.push_back({OutlineStep::LINE, {0, high}, {}, {}});
    steps.push_back({OutlineStep::LINE, {length, high}, {}, {}});
    steps.push_back({OutlineStep::LINE, {length, low}, {}, {}});
    steps.push_back({OutlineStep::LINE, {0, low}, {}, {}});
}

}  // namespace PLATFORM
