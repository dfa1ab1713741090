// SPDX-License-Identifier: MIT
#include "settings_scan.h"

#include "ignoring_case.h"
#include "output/printable.h"
#include <marlin/base/files/settings_grammar.h>

#include <algorithm>
#include <utility>

namespace HOST {

namespace {

using MARLINSUITE::SettingsLine;

// Longer lines are those of a file of another kind, and no message could show them.
constexpr std::size_t longestLine = 1024 * 1024;

class Scanner {
public:
    explicit Scanner(SettingsScan& scan) : m_Scan(scan) {}

    /// Returns false at the line that ends the reading.
    bool TakeLine(const SettingsLine& line);
    void Finish(std::size_t size);

private:
    bool TakeParts(const SettingsLine& line);
    bool TakeHeader(const SettingsLine& line);
    void TakeKey(const SettingsLine& line);
    void LookAtCharacters(const SettingsLine& line);
    bool Fault(const SettingsLine& line, std::string cause);
    void Remark(int line, SettingsRemark::KIND kind, std::string cause) {
        m_Scan.Remarks.push_back({line, kind, std::move(cause)});
    }

    SettingsScan& m_Scan;
    int m_NumIgnored = 0;
    int m_FirstIgnored = 0;
    ByName<int> m_Sections;  // their lines
    ByName<int> m_Keys;      // those of the current section
};

bool Scanner::Fault(const SettingsLine& line, std::string cause) {
    m_Scan.Fault = std::move(cause);
    m_Scan.FaultLine = line.Number;
    return false;
}

bool Scanner::TakeLine(const SettingsLine& line) {
    const std::size_t lineEnd = line.Bytes.ends_with('\n') ? 1 : 0;
    if (line.Bytes.size() - lineEnd > longestLine) {
        return Fault(line, "a line longer than 1 MiB: not a settings file");
    }
    if (line.Bytes.find('\0') != std::string_view::npos) {
        return Fault(line, "a null character: a binary file, not a settings file");
    }
    LookAtCharacters(line);
    return TakeParts(line);
}

bool Scanner::TakeParts(const SettingsLine& line) {
    switch (line.Kind) {
        case SettingsLine::HEADER:
            return TakeHeader(line);
        case SettingsLine::KEY:
            TakeKey(line);
            return true;
        case SettingsLine::PREAMBLE:
            m_FirstIgnored = m_NumIgnored == 0 ? line.Number : m_FirstIgnored;
            ++m_NumIgnored;
            return true;
        default:
            return true;
    }
}

bool Scanner::TakeHeader(const SettingsLine& line) {
    if (line.Name.empty()) {
        return false;
    }
    if (const auto [known, isNew] = m_Sections.try_emplace(line.Name, line.Number); !isNew) {
        m_Scan.FirstOfDuplicate = known->second;
        return false;
    }
    if (m_Scan.HeaderLines.empty()) {
        m_Scan.PreambleSize = line.Offset;
    }
    m_Scan.HeaderLines.push_back(line.Number);
    m_Keys.clear();
    if (!line.Ignored.empty()) {
        Remark(line.Number, SettingsRemark::WARNING, "text behind the section header is not read");
    }
    return true;
}

void Scanner::TakeKey(const SettingsLine& line) {
    if (line.Name.empty()) {
        if (!line.Value.empty()) {
            Remark(line.Number, SettingsRemark::WARNING, "a value without a key");
        }
        return;
    }
    if (const auto [known, isNew] = m_Keys.try_emplace(line.Name, line.Number); !isNew) {
        Remark(
            line.Number, SettingsRemark::ERROR,
            "key \"" + Shown(line.Name) + "\" stands already on line " + NumberText(known->second));
    }
}

void Scanner::LookAtCharacters(const SettingsLine& line) {
    const std::string_view text = MARLINSUITE::TrimmedSettingsText(line.Bytes);
    const auto isControl = [](char c) {
        return c != '\t' && (static_cast<unsigned char>(c) < 0x20 || c == '\x7F');
    };
    if (const auto* const found = std::ranges::find_if(text, isControl); found != text.end()) {
        Remark(line.Number, SettingsRemark::WARNING, "the control character " + Shown({found, 1}));
    }
}

void Scanner::Finish(std::size_t size) {
    if (m_Scan.HeaderLines.empty()) {
        m_Scan.PreambleSize = size;
    }
    if (m_NumIgnored > 0) {
        Remark(m_FirstIgnored, SettingsRemark::WARNING,
               m_NumIgnored == 1 ? "a line before the first section header is not read"
                                 : NumberText(m_NumIgnored) +
                                       " lines before the first section header are not read");
    }
    std::ranges::stable_sort(m_Scan.Remarks, {}, &SettingsRemark::Line);
}

}  // namespace

SettingsScan SettingsScan::Of(std::string_view text) {
    SettingsScan scan;
    Scanner scanner(scan);
    MARLINSUITE::ForEachSettingsLine(
        text, [&scanner](const SettingsLine& line) { return scanner.TakeLine(line); });
    scanner.Finish(text.size());
    return scan;
}

}  // namespace HOST
