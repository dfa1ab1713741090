// SPDX-License-Identifier: MIT
#include "commands.h"
#include "input.h"
#include "table.h"
#include "text_style.h"
#include <marlin/platform/text/code_page.h>

namespace HOST {

namespace {

struct Measured {
    std::string Text;  // in single-byte characters, as the lines are
    TextRectComp::Rect Rect;
    double LineHeight = 0;
    std::vector<std::string> Lines;
};

Measured Measure(const TextInfo& style, const std::string& text) {
    TextRectComp rects;
    Measured measured{text, rects(style, text), rects.GetTextHeight(), {}};
    for (int i = 0; i < rects.GetNumberOfSubStrings(); ++i) {
        measured.Lines.push_back(rects.GetSubString(i));
    }
    return measured;
}

// A text's lines stand below each other, the other columns beside the first of them.
void AppendTable(const std::vector<Measured>& texts, Output& output) {
    Table table{{"Width", Table::RIGHT},
                {"Height", Table::RIGHT},
                {"Corners"},
                {"Line height", Table::RIGHT},
                {"Lines"}};
    for (const Measured& text : texts) {
        table << LengthText(text.Rect.width) << LengthText(text.Rect.height)
              << CornersText(text.Rect) << LengthText(text.LineHeight)
              << (text.Lines.empty() ? "" : Shown(text.Lines.front()));
        for (std::size_t i = 1; i < text.Lines.size(); ++i) {
            table << ""
                  << ""
                  << ""
                  << "" << Shown(text.Lines[i]);
        }
    }
    table.AppendTo(output);
}

void AppendJson(const std::vector<Measured>& texts, JsonWriter& json) {
    json.Name("texts").BeginArray();
    for (const Measured& text : texts) {
        json.BeginObject().Name("text").Text(PLATFORM::ToUtf8(text.Text));
        AppendRect(text.Rect, json);
        json.Name("lineHeight").Number(text.LineHeight).Name("lines").BeginArray();
        for (const std::string& line : text.Lines) {
            json.Text(PLATFORM::ToUtf8(line));
        }
        json.EndArray().EndObject();
    }
    json.EndArray();
}

// A family can be asked for by a name in single-byte characters alone.
bool HasName(const std::string& family) {
    return PLATFORM::ToUtf8(PLATFORM::FromUtf8(family)) == family;
}

}  // namespace

int MeasureTexts(const TextArguments& arguments, Output& output) {
    TextInfo style;
    if (const ErrorString error = ParseTextStyle(arguments, style); !error.Empty()) {
        return Unusable(error);
    }
    std::vector<std::string> texts;
    for (const std::string& argument : arguments.Texts) {
        if (const ErrorString error = TextOfArgument(argument, texts.emplace_back());
            !error.Empty()) {
            return Unusable(error);
        }
    }
    PLATFORM::FontMatch face;
    if (const ErrorString error = FindFace(style, face); !error.Empty()) {
        return Refused(error.Text());
    }
    std::vector<Measured> measured;
    measured.reserve(texts.size());
    for (const std::string& text : texts) {
        measured.push_back(Measure(style, text));
    }
    if (output.Json) {
        JsonWriter json(output.Text);
        json.BeginObject();
        AppendFace(style, face, json);
        AppendJson(measured, json);
        json.EndObject();
    } else {
        AppendSubstitution(style, face, output.Text);
        AppendTable(measured, output);
    }
    return DONE;
}

int ListFonts(Output& output) {
    std::vector<std::string> families = PLATFORM::FontCatalog::Families();
    std::erase_if(families, [](const std::string& family) { return !HasName(family); });
    if (output.Json) {
        JsonWriter json(output.Text);
        json.BeginArray();
        for (const std::string& family : families) {
            json.Text(family);
        }
        json.EndArray();
        return DONE;
    }
    for (const std::string& family : families) {
        output.Text += Printable(family) + "\n";
    }
    return DONE;
}

}  // namespace HOST
