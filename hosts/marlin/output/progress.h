// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace HOST {

/// A line on the terminal that shows how far a long job has come, from its second second on;
/// gone when the job is. Without a terminal at standard error it shows nothing.
class Progress {
public:
    /// `total` bytes will be done; 0 when that is not known.
    Progress(std::string name, std::uint64_t total);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void Add(std::uint64_t bytes);

private:
    using Clock = std::chrono::steady_clock;

    void Print(const std::string& line);

    std::string m_Name;
    std::uint64_t m_Total;
    std::uint64_t m_Done = 0;
    bool m_IsShown;
    std::size_t m_Width = 0;  // of the line on the terminal
    Clock::time_point m_Next;
};

}  // namespace HOST
