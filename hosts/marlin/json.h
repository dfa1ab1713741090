// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace HOST {

/// Writes one JSON value, indented, member by member. The caller's calls must nest.
class JsonWriter {
public:
    explicit JsonWriter(std::string& text) : m_Text(text) {}

    JsonWriter& BeginObject() { return Begin('{'); }
    JsonWriter& EndObject() { return End('}'); }
    JsonWriter& BeginArray() { return Begin('['); }
    JsonWriter& EndArray() { return End(']'); }

    /// The name of the member whose value comes next.
    JsonWriter& Name(std::string_view name);

    /// Bytes that are not UTF-8 are taken for single-byte characters.
    JsonWriter& Text(std::string_view text);
    JsonWriter& Number(int value);
    /// A number that is not finite is written as null.
    JsonWriter& Number(double value);
    JsonWriter& Number(float value);
    JsonWriter& Bool(bool value);

private:
    JsonWriter& Begin(char bracket);
    JsonWriter& End(char bracket);
    template <class T>
    JsonWriter& AppendDecimal(T value);
    void BeginValue();
    void AppendQuoted(std::string_view utf8);
    void NewLine();

    std::string& m_Text;
    std::size_t m_Depth = 0;
    bool m_IsFirst = true;   // of its object or array
    bool m_HasName = false;  // a name waits for its value
};

}  // namespace HOST
