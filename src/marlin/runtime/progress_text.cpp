// SPDX-License-Identifier: MIT
#include <marlin/runtime/progress_text.h>

namespace MARLINSUITE {

std::string ProgressText::Get() const {
    const std::lock_guard lock(m_Lock);
    return m_Text;
}

const std::string& ProgressText::Refreshed() const {
    const std::lock_guard lock(m_Lock);
    return m_Copies[std::this_thread::get_id()] = m_Text;
}

}  // namespace MARLINSUITE
