// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string_view>

namespace MARLINSUITE {

/// Gathers text in one block and hands it on whenever the block is full, so that writing a file
/// costs little memory, whatever its size.
class BlockOutput {
public:
    using Sink = std::function<void(std::string_view)>;

    explicit BlockOutput(Sink sink);

    /// Where up to `size` bytes may be written; the place is good until the next call.
    [[nodiscard]] char* Room(std::size_t size) {
        if (m_Capacity - m_Size < size) {
            MakeRoom(size);
        }
        return m_Block.get() + m_Size;
    }
    /// What was written there counts up to `end`.
    void Take(const char* end) noexcept { m_Size = static_cast<std::size_t>(end - m_Block.get()); }

    /// Hands on what is left in the block, and then the text, without copying it.
    void Pass(std::string_view text);
    void Finish() { Pass({}); }

private:
    void MakeRoom(std::size_t size);

    Sink m_Sink;
    std::size_t m_Capacity;
    std::size_t m_Size = 0;
    std::unique_ptr<char[]> m_Block;
};

/// What a file is to hold. Called twice it gives the same bytes.
using Contents = std::function<void(BlockOutput&)>;

}  // namespace MARLINSUITE
