// SPDX-License-Identifier: MIT
#include "json.h"

#include "output.h"
#include <marlin/core/number_text.h>

#include <cmath>

namespace HOST {

void JsonWriter::NewLine() {
    m_Text += '\n';
    m_Text.append(2 * m_Depth, ' ');
}

void JsonWriter::BeginValue() {
    if (m_HasName) {
        m_HasName = false;
        return;
    }
    if (!m_IsFirst) {
        m_Text += ',';
    }
    if (m_Depth > 0) {
        NewLine();
    }
    m_IsFirst = false;
}

JsonWriter& JsonWriter::Begin(char bracket) {
    BeginValue();
    m_Text += bracket;
    ++m_Depth;
    m_IsFirst = true;
    return *this;
}

JsonWriter& JsonWriter::End(char bracket) {
    --m_Depth;
    if (!m_IsFirst) {
        NewLine();
    }
    m_Text += bracket;
    m_IsFirst = false;
    if (m_Depth == 0) {
        m_Text += '\n';
    }
    return *this;
}

JsonWriter& JsonWriter::Name(std::string_view name) {
    Text(name);
    m_Text += ": ";
    m_HasName = true;
    return *this;
}

JsonWriter& JsonWriter::Text(std::string_view text) {
    BeginValue();
    AppendQuoted(AsUtf8(text));
    return *this;
}

void JsonWriter::AppendQuoted(std::string_view utf8) {
    constexpr std::string_view digits = "0123456789abcdef";
    m_Text += '"';
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            m_Text += '\\';
            m_Text += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            m_Text += "\\u00";
            m_Text += digits[byte >> 4U];
            m_Text += digits[byte & 0x0FU];
        } else {
            m_Text += c;
        }
    }
    m_Text += '"';
}

JsonWriter& JsonWriter::Number(int value) {
    BeginValue();
    MARLINSUITE::AppendNumber(m_Text, value);
    return *this;
}

template <class T>
JsonWriter& JsonWriter::AppendDecimal(T value) {
    BeginValue();
    if (std::isfinite(value)) {
        MARLINSUITE::AppendShortest(m_Text, value);
    } else {
        m_Text += "null";
    }
    return *this;
}

JsonWriter& JsonWriter::Number(double value) {
    return AppendDecimal(value);
}

JsonWriter& JsonWriter::Number(float value) {
    return AppendDecimal(value);
}

JsonWriter& JsonWriter::Bool(bool value) {
    BeginValue();
    m_Text += value ? "true" : "false";
    return *this;
}

}  // namespace HOST
