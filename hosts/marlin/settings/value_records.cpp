// SPDX-License-Identifier: MIT
#include "value_records.h"

#include <marlin/base/marlin_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/records/depth_label_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/text_info.h>

#include <algorithm>

namespace HOST {

namespace {

constexpr std::size_t oldLabelItems = 14;  // without a color word and the last two flags
constexpr int lineStyleItem = 2;

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

template <class T>
MARLINSUITE::RecordFields FieldsOf(const std::string& text) {
    T record;
    record.FromString(text);
    return record.Fields();
}

void AddRecord(const char* kind, const SectionKey& key, const MARLINSUITE::RecordFields& fields,
               std::vector<Record>& records) {
    Record& record = records.emplace_back(Record{kind, key.GetName(), {}});
    for (const MARLINSUITE::RecordField& field : fields) {
        Show(record, field, SectionKey(*key.GetName(), field.Text, ""));
    }
}

void AddRecordOf(const SectionKey& key, std::vector<Record>& records) {
    static const std::size_t lineItems = LineInfo().Fields().size();
    static const std::size_t textItems = TextInfo().Fields().size();
    static const std::size_t labelItems = DepthLabelInfo().Fields().size();
    const std::string& text = key.GetValue();
    const CMarlinString items(CString(std::string_view(text)), ',');
    const auto size = static_cast<std::size_t>(items.Size());
    if (size == lineItems && IsLineStyle(items[lineStyleItem]) &&
        AreNumbersBut(items, lineStyleItem)) {
        AddRecord("line", key, FieldsOf<LineInfo>(text), records);
    } else if (size == textItems && AreNumbersBut(items, 0)) {
        AddRecord("text", key, FieldsOf<TextInfo>(text), records);
    } else if ((size == labelItems || size == oldLabelItems) && AreNumbersBut(items, 0)) {
        AddRecord("depth label", key, FieldsOf<DepthLabelInfo>(text), records);
    }
}

}  // namespace

void AddValueRecords(const Section& section, std::vector<Record>& records) {
    for (const SectionKey& key : section.Keys()) {
        if (key.GetValue().find(',') != std::string::npos) {
            AddRecordOf(key, records);
        }
    }
}

}  // namespace HOST
