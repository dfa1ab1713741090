// SPDX-License-Identifier: MIT
#include "progress.h"

#include "printable.h"
#include <marlin/platform/kernel/process.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace HOST {

Progress::Progress(std::string name, std::uint64_t total)
    : m_Name(std::move(name)),
      m_Total(total),
      m_IsShown(PLATFORM::IsTerminal(stderr)),
      m_Next(Clock::now() + std::chrono::seconds(1)) {}

Progress::~Progress() {
    if (m_Width > 0) {
        Print("");
        static_cast<void>(std::fputs("\r", stderr));
    }
}

void Progress::Add(std::uint64_t bytes) {
    m_Done += bytes;
    if (!m_IsShown || Clock::now() < m_Next) {
        return;
    }
    m_Next = Clock::now() + std::chrono::milliseconds(200);
    const std::string share =
        m_Total > 0 ? std::to_string(std::min<std::uint64_t>(100, m_Done * 100 / m_Total)) + " %"
                    : std::to_string(m_Done >> 20U) + " MiB";
    Print(Printable(AsUtf8(m_Name)) + ": " + share);
}

// Blanks clear what was longer; not every terminal knows a control sequence for that.
void Progress::Print(const std::string& line) {
    const std::string blanks(m_Width - std::min(m_Width, line.size()), ' ');
    static_cast<void>(std::fputs(("\r" + line + blanks).c_str(), stderr));
    m_Width = line.size();
}

}  // namespace HOST
