// SPDX-License-Identifier: MIT
#include "settings_text.h"

#include "ignoring_case.h"
#include "output/failure.h"
#include <marlin/base/files/settings_grammar.h>
#include <marlin/platform/text/code_page.h>

#include <algorithm>

namespace HOST {

namespace {

using MARLINSUITE::SettingsLine;

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// The line with another text in the place of one of its parts.
std::string Spliced(std::string_view line, std::string_view part, const std::string& text) {
    std::string spliced(line);
    return spliced.replace(static_cast<std::size_t>(part.data() - line.data()), part.size(), text);
}

std::string WithValue(const SettingsLine& line, const std::string& value) {
    if (line.Value == value) {
        return std::string(line.Bytes);
    }
    if (!line.Value.empty()) {
        return Spliced(line.Bytes, line.Value, value);
    }
    std::string_view rest = line.Bytes;
    rest.remove_prefix(static_cast<std::size_t>(line.Name.data() - rest.data()) + line.Name.size());
    const auto equals = rest.find_first_not_of(" \t");
    if (equals == std::string_view::npos || rest[equals] != '=') {
        return Spliced(line.Bytes, rest.substr(0, 0), " = " + value);
    }
    rest.remove_prefix(equals + 1);
    rest.remove_prefix(!rest.empty() && IsBlank(rest.front()) ? 1 : 0);
    return Spliced(line.Bytes, rest.substr(0, 0), value);
}

// A key as the line of another key writes it: without blanks, or with the "=" in its column.
std::string NewKey(const std::string& name, const std::string& value, std::string_view other) {
    const auto equals = other.find('=');
    if (equals != std::string_view::npos && equals > 0 && !IsBlank(other[equals - 1])) {
        return name + "=" + value;
    }
    std::string text = name + " ";
    if (equals != std::string_view::npos && text.size() < equals) {
        text.resize(equals, ' ');
    }
    return text + "= " + value;
}

bool EndsInBlankLine(std::string_view text) {
    const auto last = text.empty() ? text.npos : text.rfind('\n', text.size() - 2);
    return last != text.npos && MARLINSUITE::TrimmedSettingsText(text.substr(last)).empty();
}

}  // namespace

SettingsText::SettingsText(std::string_view bytes, std::size_t preambleSize)
    : m_Preamble(bytes.substr(0, preambleSize)),
      m_IsUtf8(PLATFORM::IsUtf8(bytes)),
      m_LacksLastEnd(!bytes.empty() && !bytes.ends_with('\n')) {
    if (const auto end = bytes.find('\n'); end != std::string_view::npos) {
        m_LineEnd = end > 0 && bytes[end - 1] == '\r' ? "\r\n" : "\n";
    }
    const auto take = [this](const SettingsLine& line) {
        if (line.Kind == SettingsLine::HEADER) {
            m_Blocks.emplace_back();
        }
        m_Blocks.back() += line.Bytes;
        return true;
    };
    MARLINSUITE::ForEachSettingsLine(bytes.substr(preambleSize), take);
    if (m_LacksLastEnd) {
        (m_Blocks.empty() ? m_Preamble : m_Blocks.back()) += m_LineEnd;
    }
}

std::string SettingsText::Bytes() const {
    std::string bytes = m_Preamble;
    for (const std::string& block : m_Blocks) {
        bytes += block;
    }
    if (m_LacksLastEnd && bytes.ends_with(m_LineEnd)) {
        bytes.resize(bytes.size() - m_LineEnd.size());
    }
    return bytes;
}

std::string SettingsText::FromArgument(const std::string& typed) const {
    const std::string utf8 = PLATFORM::ToUtf8(typed);
    if (m_IsUtf8) {
        return utf8;
    }
    const std::string text = PLATFORM::FromUtf8(utf8);
    if (PLATFORM::ToUtf8(text) != utf8) {
        Fail("\"" + typed + "\" holds a character that Windows-1252 lacks");
    }
    return text;
}

std::string SettingsText::Updated(const std::string& block, const Section& section) const {
    ByName<const SectionKey*> keys;
    for (const SectionKey& key : section.Keys()) {
        if (key.IsValid()) {
            keys.emplace(*key.GetName(), &key);
        }
    }
    std::string text;
    std::size_t end = 0;     // of the last key, or of the header
    std::string_view other;  // the last key
    MARLINSUITE::ForEachSettingsLine(block, [&](const SettingsLine& line) {
        if (line.Kind == SettingsLine::HEADER) {
            text += Spliced(line.Bytes, line.Name, *section.GetName());
            end = text.size();
        } else if (const auto key = keys.find(line.Name);
                   line.Kind == SettingsLine::KEY && !line.Name.empty()) {
            text += key == keys.end() ? line.Bytes : WithValue(line, key->second->GetValue());
            end = text.size();
            other = line.Bytes;
            if (key != keys.end()) {
                keys.erase(key);
            }
        } else {
            text += line.Bytes;
        }
        return true;
    });
    std::string added;
    for (const SectionKey& key : section.Keys()) {
        if (const auto found = keys.find(*key.GetName());
            found != keys.end() && found->second == &key) {
            added += NewKey(*key.GetName(), key.GetValue(), other) + m_LineEnd;
        }
    }
    return text.insert(end, added);
}

std::string SettingsText::NewBlock(const Section& section) const {
    constexpr std::string_view writtenEnd = "\r\n";
    std::string written;
    section.AppendTo(written);
    std::string block;
    MARLINSUITE::ForEachSettingsLine(written, [&](const SettingsLine& line) {
        block.append(line.Bytes.substr(0, line.Bytes.size() - writtenEnd.size())) += m_LineEnd;
        return true;
    });
    return block;
}

// Where the file does not end in a blank line, neither does it afterwards.
void SettingsText::Append(std::string block) {
    std::string& before = m_Blocks.empty() ? m_Preamble : m_Blocks.back();
    if (!before.empty() && !EndsInBlankLine(before)) {
        before += m_LineEnd;
        block.resize(block.size() - (EndsInBlankLine(block) ? m_LineEnd.size() : 0));
    }
    m_Blocks.push_back(std::move(block));
}

}  // namespace HOST
