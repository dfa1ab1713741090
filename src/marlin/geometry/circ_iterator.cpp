// SPDX-License-Identifier: MIT
#include <marlin/geometry/circ_iterator.h>

void CircIterator::SetStart(int start) noexcept {
    m_Start = start;
    m_Current = Wrap(m_Current);
}

void CircIterator::SetRange(int range) noexcept {
    m_Range = range;
    m_Current = Wrap(m_Current);
}
