// SPDX-License-Identifier: MIT
#include "settings_scan.h"

#include "output/printable.h"
#include <marlin/core/ascii.h>

#include <algorithm>
#include <unordered_map>

namespace HOST {

namespace {

constexpr std::size_t longestLine = 1024 * 1024;

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), PLATFORM::ToLower);
    return lower;
}

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\n\r";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

class Scanner {
public:
    explicit Scanner(SettingsScan& scan) : m_Scan(scan) {}

    /// False at the line that ends the reading.
    bool TakeLine(std::string_view line, std::size_t offset);
    void Finish(std::size_t size);

private:
    bool TakeHeader(std::string_view line, std::size_t end, std::size_t offset);
    void TakeKey(std::string_view line);
    void LookAtCharacters(std::string_view line);
    bool Fault(std::string cause);
    void Remark(SettingsRemark::KIND kind, std::string cause) {
        m_Scan.Remarks.push_back({m_Line, kind, std::move(cause)});
    }

    SettingsScan& m_Scan;
    int m_Line = 0;
    int m_NumIgnored = 0;
    int m_FirstIgnored = 0;
    std::unordered_map<std::string, int> m_Sections;  // lines by lower-case name
    std::unordered_map<std::string, int> m_Keys;      // of the current section
};

bool Scanner::Fault(std::string cause) {
    m_Scan.Fault = std::move(cause);
    m_Scan.FaultLine = m_Line;
    return false;
}

bool Scanner::TakeLine(std::string_view line, std::size_t offset) {
    ++m_Line;
    if (line.size() > longestLine) {
        return Fault("a line longer than 1 MiB: not a settings file");
    }
    if (line.find('\0') != std::string_view::npos) {
        return Fault("a null character: a binary file, not a settings file");
    }
    if (m_Line == 1 && line.starts_with("\xEF\xBB\xBF")) {
        Remark(SettingsRemark::WARNING,
               "a byte order mark: a header on this line is not seen as one");
    }
    const std::string_view trimmed = Trimmed(line);
    if (trimmed.empty()) {
        return true;
    }
    LookAtCharacters(trimmed);
    const auto end = trimmed.front() == '[' ? trimmed.find(']') : std::string_view::npos;
    if (end != std::string_view::npos) {
        return TakeHeader(trimmed, end, offset);
    }
    if (m_Scan.HeaderLines.empty()) {
        m_FirstIgnored = m_NumIgnored == 0 ? m_Line : m_FirstIgnored;
        ++m_NumIgnored;
    } else {
        TakeKey(trimmed);
    }
    return true;
}

bool Scanner::TakeHeader(std::string_view line, std::size_t end, std::size_t offset) {
    const std::string_view name = line.substr(1, end - 1);
    if (name.empty()) {
        return false;
    }
    if (const auto [known, isNew] = m_Sections.try_emplace(LowerCase(name), m_Line); !isNew) {
        m_Scan.FirstOfDuplicate = known->second;
        return false;
    }
    if (m_Scan.HeaderLines.empty()) {
        m_Scan.PreambleSize = offset;
    }
    m_Scan.HeaderLines.push_back(m_Line);
    m_Keys.clear();
    const std::string_view behind = line.substr(end + 1);
    if (!Trimmed(behind.substr(0, behind.find(';'))).empty()) {
        Remark(SettingsRemark::LOSS, "text behind the section header is not read");
    }
    return true;
}

void Scanner::TakeKey(std::string_view line) {
    const std::string_view entry = line.substr(0, line.find(';'));
    const auto sign = entry.find('=');
    const std::string_view name = Trimmed(entry.substr(0, sign));
    if (name.empty()) {
        if (sign != std::string_view::npos && !Trimmed(entry.substr(sign + 1)).empty()) {
            Remark(SettingsRemark::LOSS, "a value without a key");
        }
        return;
    }
    if (const auto [known, isNew] = m_Keys.try_emplace(LowerCase(name), m_Line); !isNew) {
        Remark(SettingsRemark::ERROR,
               "key \"" + Shown(name) + "\" stands already on line " + NumberText(known->second));
    }
}

void Scanner::LookAtCharacters(std::string_view line) {
    const auto isControl = [](char c) {
        return c != '\t' && (static_cast<unsigned char>(c) < 0x20 || c == '\x7F');
    };
    if (const auto* const found = std::ranges::find_if(line, isControl); found != line.end()) {
        Remark(SettingsRemark::WARNING, "the control character " + Shown({found, 1}));
    }
}

void Scanner::Finish(std::size_t size) {
    if (m_Scan.HeaderLines.empty()) {
        m_Scan.PreambleSize = size;
    }
    if (m_NumIgnored > 0) {
        m_Line = m_FirstIgnored;
        Remark(SettingsRemark::WARNING,
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
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t end = std::min(text.find('\n', offset), text.size());
        if (!scanner.TakeLine(text.substr(offset, end - offset), offset)) {
            break;
        }
        offset = end + 1;
    }
    scanner.Finish(text.size());
    return scan;
}

const SettingsRemark* SettingsScan::FirstLoss() const noexcept {
    const auto found = std::ranges::find(Remarks, SettingsRemark::LOSS, &SettingsRemark::Kind);
    return found == Remarks.end() ? nullptr : &*found;
}

}  // namespace HOST
