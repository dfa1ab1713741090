// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/text/string_table.h>

#include <algorithm>
#include <cassert>
#include <clocale>
#include <cstdarg>
#include <cstdio>

namespace {

std::string_view ViewOf(const char* text) noexcept {
    return text ? std::string_view(text) : std::string_view();
}

int PositionOrNone(std::size_t position) noexcept {
    return position == std::string::npos ? -1 : static_cast<int>(position);
}

std::size_t ClampedCount(int count) noexcept {
    return static_cast<std::size_t>(std::max(count, 0));
}

// For this thread and its own lifetime numbers have a point, whatever the host's locale.
class ClassicLocale {
public:
    ClassicLocale() noexcept {
        static const locale_t classic = ::newlocale(LC_ALL_MASK, "C", nullptr);
        m_Before = ::uselocale(classic);
    }
    ClassicLocale(const ClassicLocale&) = delete;
    ClassicLocale& operator=(const ClassicLocale&) = delete;
    ~ClassicLocale() { ::uselocale(m_Before); }

private:
    locale_t m_Before = nullptr;
};

}  // namespace

CString::CString(const char* text) : m_Text(ViewOf(text)) {}

CString::CString(const char* text, int length)
    : m_Text(text ? std::string(text, ClampedCount(length)) : std::string()) {}

CString::CString(char character, int repeat) : m_Text(ClampedCount(repeat), character) {}

CString& CString::operator=(const char* text) {
    m_Text = ViewOf(text);
    return *this;
}

char CString::GetAt(int position) const noexcept {
    assert(position >= 0 && position <= GetLength());
    return m_Text[static_cast<std::size_t>(position)];
}

void CString::SetAt(int position, char character) noexcept {
    assert(position >= 0 && position < GetLength());
    m_Text[static_cast<std::size_t>(position)] = character;
}

CString& CString::operator+=(const CString& text) {
    m_Text += text.m_Text;
    return *this;
}

CString& CString::operator+=(const char* text) {
    m_Text += ViewOf(text);
    return *this;
}

CString& CString::operator+=(char character) {
    m_Text += character;
    return *this;
}

CString CString::Left(int count) const {
    return CString(View().substr(0, ClampedCount(count)));
}

CString CString::Right(int count) const {
    const std::size_t kept = std::min(ClampedCount(count), m_Text.size());
    return CString(View().substr(m_Text.size() - kept));
}

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    const std::size_t from = std::min(ClampedCount(first), m_Text.size());
    return CString(View().substr(from, ClampedCount(count)));
}

int CString::Find(char character, int start) const noexcept {
    return PositionOrNone(m_Text.find(character, ClampedCount(start)));
}

int CString::Find(const char* text, int start) const noexcept {
    return PositionOrNone(m_Text.find(ViewOf(text), ClampedCount(start)));
}

int CString::ReverseFind(char character) const noexcept {
    return PositionOrNone(m_Text.rfind(character));
}

int CString::Compare(const char* other) const noexcept {
    return View().compare(ViewOf(other));
}

int CString::CompareNoCase(const char* other) const noexcept {
    return MARLINSUITE::CompareIgnoringCase(View(), ViewOf(other));
}

CString& CString::MakeUpper() noexcept {
    std::ranges::transform(m_Text, m_Text.begin(), MARLINSUITE::ToUpper);
    return *this;
}

CString& CString::MakeLower() noexcept {
    std::ranges::transform(m_Text, m_Text.begin(), MARLINSUITE::ToLower);
    return *this;
}

CString& CString::Trim() {
    const auto end = std::find_if_not(m_Text.rbegin(), m_Text.rend(), MARLINSUITE::IsBlank).base();
    m_Text.erase(end, m_Text.end());
    m_Text.erase(m_Text.begin(), std::ranges::find_if_not(m_Text, MARLINSUITE::IsBlank));
    return *this;
}

int CString::Replace(char from, char to) noexcept {
    const auto count = std::ranges::count(m_Text, from);
    std::ranges::replace(m_Text, from, to);
    return static_cast<int>(count);
}

int CString::Replace(const char* from, const char* to) {
    const std::string wanted(ViewOf(from));
    if (wanted.empty()) {
        return 0;
    }
    const std::string replacement(ViewOf(to));
    std::string result;
    int count = 0;
    std::size_t done = 0;
    for (std::size_t at = m_Text.find(wanted); at != std::string::npos;
         at = m_Text.find(wanted, done)) {
        result.append(m_Text, done, at - done).append(replacement);
        done = at + wanted.size();
        ++count;
    }
    m_Text = result.append(m_Text, done);
    return count;
}

void CString::Format(const char* format, ...) {
    const ClassicLocale classic;
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string formatted(ClampedCount(length), '\0');
    if (length > 0) {
        static_cast<void>(std::vsnprintf(formatted.data(), formatted.size() + 1, format, again));
    }
    va_end(again);
    m_Text = std::move(formatted);
}

bool CString::LoadString(unsigned int id) {
    const std::string_view text = PLATFORM::StringTable::Text(id);
    m_Text = text;
    return !text.empty();
}
