// SPDX-License-Identifier: MIT
#include "families.h"
#include "measurement.h"
#include "style_options.h"

#include <algorithm>

namespace HOST {

namespace {

struct MeasuredText {
    std::string Text;  // in single-byte characters, as the lines are
    TextRectComp::Rect Rect;
    double LineHeight = 0;
    std::vector<std::string> Lines;
};

MeasuredText Measure(const TextInfo& style, const std::string& text) {
    TextRectComp rects;
    MeasuredText measured{text, rects(style, text), rects.GetTextHeight(), {}};
    for (int i = 0; i < rects.GetNumberOfSubStrings(); ++i) {
        measured.Lines.push_back(rects.GetSubString(i));
    }
    return measured;
}

// A text's lines are below each other, the other columns beside the first of them.
void AppendRows(const MeasuredText& text, Table& table) {
    table << LengthText(text.Rect.width) << LengthText(text.Rect.height) << CornersText(text.Rect)
          << LengthText(text.LineHeight) << (text.Lines.empty() ? "" : Shown(text.Lines.front()));
    for (std::size_t i = 1; i < text.Lines.size(); ++i) {
        table.Skip(4) << Shown(text.Lines[i]);
    }
}

Json JsonOf(const MeasuredText& text) {
    Json json = {{"text", AsUtf8(text.Text)}};
    AddRect(text.Rect, json);
    json["lineHeight"] = JsonNumber(text.LineHeight);
    Json& lines = json["lines"] = Json::array();
    for (const std::string& line : text.Lines) {
        lines.push_back(AsUtf8(line));
    }
    return json;
}

struct MeasureTexts {
    StyleOptions Style;
    std::string Wrap;
    std::vector<std::string> Texts;
    bool IsJson = false;

    void Declare(Options& options) {
        Style.Declare(options);
        options.Json(IsJson);
        options.Option("--wrap", Wrap, R"(Wrap to that width, and break at each "\P")", "WIDTH");
        options.Words("TEXT", Texts, R"(Behind "--" if one begins with "-")");
    }

    [[nodiscard]] TextInfo ParsedStyle() const {
        TextInfo style;
        float width = 0.0F;
        Style.ApplyTo(style);
        ParseLength("--wrap", Wrap, width);
        style.SetMultiLine(!Wrap.empty());
        style.SetRectWidth(width);
        return style;
    }

    int Run(Output& output) const;
};

int MeasureTexts::Run(Output& output) const {
    const TextInfo style = ParsedStyle();
    const Measurement measurement(style);
    Table table{{"Width", Table::RIGHT},
                {"Height", Table::RIGHT},
                {"Corners"},
                {"Line height", Table::RIGHT},
                {"Lines"}};
    Json json = Json::array();
    for (const std::string& text : Texts) {
        const MeasuredText measured = Measure(style, text);
        AppendRows(measured, table);
        json.push_back(JsonOf(measured));
    }
    if (IsJson) {
        measurement.Append("texts", std::move(json), output);
    } else {
        measurement.Append(table, output);
    }
    return DONE;
}

}  // namespace

void AddMeasureTexts(Family& text) {
    text.Add<MeasureTexts>("measure", "Measure texts");
}

}  // namespace HOST
