// SPDX-License-Identifier: MIT
#include <marlin/runtime/progress_text.h>

namespace MARLINSUITE {

std::string ProgressText::Get() const {
    const std::lock_guard lock(m_Lock);
    return m_Text;
}

const std::string& ProgressText::Refreshed() const {
    const std::lock_guard lock(m_Lock);
    m_ReadersCopy = m_Text;
    return m_ReadersCopy;
}

ProgressText& ProgressText::operator=(std::string_view text) {
    const std::lock_guard lock(m_Lock);
    m_Text = text;
    return *this;
}

ProgressText& ProgressText::operator+=(std::string_view text) {
    const std::lock_guard lock(m_Lock);
    m_Text += text;
    return *this;
}

}  // namespace MARLINSUITE
