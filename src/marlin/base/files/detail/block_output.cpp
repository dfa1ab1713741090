// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/block_output.h>

#include <utility>

namespace MARLINSUITE {

namespace {

constexpr std::size_t usualCapacity = 64 * 1024;

}  // namespace

BlockOutput::BlockOutput(Sink sink)
    : m_Sink(std::move(sink)),
      m_Capacity(usualCapacity),
      m_Block(std::make_unique_for_overwrite<char[]>(usualCapacity)) {}

void BlockOutput::Pass(std::string_view text) {
    if (m_Size != 0) {
        m_Sink(std::string_view(m_Block.get(), m_Size));
        m_Size = 0;
    }
    if (!text.empty()) {
        m_Sink(text);
    }
}

void BlockOutput::MakeRoom(std::size_t size) {
    Finish();
    if (size > m_Capacity) {
        m_Block = std::make_unique_for_overwrite<char[]>(size);
        m_Capacity = size;
    }
}

}  // namespace MARLINSUITE
