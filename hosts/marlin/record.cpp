// SPDX-License-Identifier: MIT
#include "record.h"

#include <marlin/color/dxf_color.h>
#include <marlin/core/number_text.h>

namespace HOST {

std::string RecordWriter::Source(Names keys) const {
    for (const char* const name : keys) {
        const SectionKey& key = m_Keys[m_Start + name];
        if (key.IsValid()) {
            return key.GetName();
        }
    }
    return {};
}

RecordWriter& RecordWriter::Text(Names keys, std::string value, std::string meaning) {
    m_Record.Fields.push_back({Source(keys), std::move(value), std::nullopt, std::move(meaning)});
    return *this;
}

RecordWriter& RecordWriter::Number(Names keys, double value, std::string meaning) {
    std::string text;
    MARLINSUITE::AppendShortest(text, value);
    return Text(keys, std::move(text), std::move(meaning));
}

RecordWriter& RecordWriter::Number(Names keys, float value, std::string meaning) {
    std::string text;
    MARLINSUITE::AppendShortest(text, value);
    return Text(keys, std::move(text), std::move(meaning));
}

RecordWriter& RecordWriter::Number(Names keys, int value, std::string meaning) {
    std::string text;
    MARLINSUITE::AppendNumber(text, value);
    return Text(keys, std::move(text), std::move(meaning));
}

RecordWriter& RecordWriter::Switch(Names keys, bool value, std::string meaning) {
    return Text(keys, value ? "yes" : "no", std::move(meaning));
}

RecordWriter& RecordWriter::Color(Names keys, unsigned long word, const std::string& of) {
    const RGBColor color(word);
    std::string meaning = of + ", palette index ";
    MARLINSUITE::AppendNumber(meaning, DXFColor(color).Index());
    m_Record.Fields.push_back({Source(keys), "", color, std::move(meaning)});
    return *this;
}

}  // namespace HOST
