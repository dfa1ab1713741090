// SPDX-License-Identifier: MIT
#include "record.h"
#include <marlin/base/marlin_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/text_info.h>

#include <algorithm>

namespace HOST {

namespace {

constexpr int textItems = 10;
constexpr int labelItems = 17;
constexpr int oldLabelItems = 14;  // without a color word and the last two flags
constexpr int lineItems = 5;
constexpr int styleItem = 2;  // of a line

bool AreNumbersBut(const CMarlinString& items, int text) {
    for (int i = 0; i < items.Size(); ++i) {
        unsigned long word = 0;  // color words do not keep every digit as a float
        float number = 0.0F;
        if (i != text && !items.GetItem(i, number) && !items.GetItem(i, word)) {
            return false;
        }
    }
    return true;
}

bool IsLineStyle(const CString& item) {
    return std::ranges::any_of(LineInfo::STYLEDESCRIPTIONS, [&item](const std::string& style) {
        return icompare(item.GetString(), style);
    });
}

std::string StyleText(TextInfo::STYLE style) {
    std::string text;
    for (const auto& [bit, word] :
         {std::pair(TextInfo::BOLD, "bold"), std::pair(TextInfo::ITALIC, "italic"),
          std::pair(TextInfo::UNDERLINE, "underlined")}) {
        if ((static_cast<unsigned int>(style) & static_cast<unsigned int>(bit)) != 0) {
            text += (text.empty() ? "" : ", ") + std::string(word);
        }
    }
    return text.empty() ? "upright" : text;
}

const char* JustificationText(TextInfo::JUSTIFICATION justification) {
    static constexpr const char* texts[] = {"bottom left",   "bottom center",   "bottom right",
                                            "middle right",  "top right",       "top center",
                                            "top left",      "middle left",     "middle center",
                                            "baseline left", "baseline center", "baseline right"};
    return texts[justification];  // which the record keeps in range
}

void DescribeText(const TextInfo& text, const char* key, RecordWriter& writer) {
    writer.Text({key}, text.Font(), "font")
        .Number({key}, text.Size(), "height of the characters")
        .Text({key}, StyleText(text.Style()), "style")
        .Text({key}, JustificationText(text.Justification()), "point of the box on the anchor")
        .Color({key}, text.Color(), "color")
        .Number({key}, text.Rotation().Get(), "rotation in degrees")
        .Number({key}, text.RectWidth(), "width of the box of a text of several lines")
        .Switch({key}, text.MultiLine(), "several lines")
        .Number({key}, static_cast<int>(text.Annotation()), "annotation code");
}

void DescribeLabel(const DepthLabelInfo& label, const char* key, RecordWriter& writer) {
    DescribeText(label, key, writer);
    writer.Number({key}, label.Precision(), "decimals of the depths")
        .Number({key}, static_cast<int>(label.Presentation()), "code of the decimals' layout")
        .Number({key}, static_cast<int>(label.Placement()), "code of the point at the position")
        .Switch({key}, label.UseTextColor(), "in the color of the text")
        .Switch({key}, label.AutoTextRotation(), "turned automatically")
        .Switch({key}, label.GetUnderlineDryingHeights(), "drying heights are underlined")
        .Switch({key}, label.GetNoDecimalZeros(), "zeros among the decimals are left out");
}

void DescribeLine(const LineInfo& line, const char* key, RecordWriter& writer) {
    writer.Switch({key}, line.Enable(), "the line is drawn")
        .Number({key}, line.Width(), "width")
        .Color({key}, line.Color(), "color")
        .Text({key}, line.StyleStr(), "dash pattern");
}

template <class T>
T FromText(const std::string& text) {
    T record;
    record.FromString(text);
    return record;
}

void AddRecordOf(const SectionKey& key, const Section& section, std::vector<Record>& records) {
    const CMarlinString items(CString(std::string_view(key.GetValue())), ',');
    const char* const name = key.GetName().c_str();
    Record record{"", key.GetName(), {}};
    RecordWriter writer(record, section, "");
    const int size = items.Size();
    if (size == lineItems && IsLineStyle(items[styleItem]) && AreNumbersBut(items, styleItem)) {
        record.Kind = "line";
        DescribeLine(FromText<LineInfo>(key.GetValue()), name, writer);
    } else if (size == textItems && AreNumbersBut(items, 0)) {
        record.Kind = "text";
        DescribeText(FromText<TextInfo>(key.GetValue()), name, writer);
    } else if ((size == labelItems || size == oldLabelItems) && AreNumbersBut(items, 0)) {
        record.Kind = "depth label";
        DescribeLabel(FromText<DepthLabelInfo>(key.GetValue()), name, writer);
    } else {
        return;
    }
    records.push_back(std::move(record));
}

}  // namespace

void AddRecordsInValues(const Section& section, std::vector<Record>& records) {
    for (const SectionKey& key : section.Keys()) {
        if (key.GetValue().find(',') != std::string::npos) {
            AddRecordOf(key, section, records);
        }
    }
}

}  // namespace HOST
