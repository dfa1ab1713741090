// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/detail/contour_file.h>
#include <marlin/contours/detail/contour_keys.h>
#include <marlin/core/detail/load_order.h>

#include <algorithm>
#include <cassert>
#include <cmath>
#include <span>
#include <utility>

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] const std::string ContourDefinitionList::LINESTYLES[3] = {
    MARLINSUITE::detail::LineTypes[0].Text, MARLINSUITE::detail::LineTypes[1].Text,
    MARLINSUITE::detail::LineTypes[2].Text};

namespace {

// In front of the definitions, in definitions.
constexpr std::size_t leastRoom = 16;

// The smallest multiple of the interval that is not below the lowest level.
double FirstLevel(double lowest, double interval) {
    const double first = lowest - std::fmod(lowest, interval);
    return first < lowest ? first + interval : first;
}

// -1 for too many levels, among them the endless ones of an interval that does not move a level.
int CountLevels(double first, double highest, double interval) {
    int count = 0;
    for (double level = first; level <= highest; level += interval) {
        if (++count > ContourDefinitionList::MaxGeneratedLevels) {
            return -1;
        }
    }
    return count;
}

}  // namespace

const ContourDefinitionList::ContourDefInfo& ContourDefinitionList::operator[](
    int index) const noexcept {
    assert(HoldsIndex(index));
    return m_Storage[PositionOf(index)];
}

// Written out, since a list in another order than by level may be searched too.
std::size_t ContourDefinitionList::LowerBound(double level) const noexcept {
    std::size_t first = m_First;
    std::size_t count = m_Storage.size() - m_First;
    while (count > 0) {
        const std::size_t half = count / 2;
        if (m_Storage[first + half].Level < level) {
            first += half + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    return first;
}

int ContourDefinitionList::Find(double level) const noexcept {
    const std::size_t position = LowerBound(level);
    if (position == m_Storage.size()) {
        return -1;
    }
    if (m_Storage[position].Level == level) {
        return IndexOf(position);
    }
    const bool isBefore = position > m_First && m_Storage[position - 1].Level == level;
    return isBefore ? IndexOf(position) - 1 : -1;
}

void ContourDefinitionList::Swap(ContourDefinitionList& other) noexcept {
    m_Storage.swap(other.m_Storage);
    std::swap(m_First, other.m_First);
    std::swap(m_IsAscending, other.m_IsAscending);
}

void ContourDefinitionList::Clear() noexcept {
    m_Storage.clear();
    m_First = 0;
    m_IsAscending = true;
}

void ContourDefinitionList::NoteOrder() noexcept {
    const std::span<const ContourDefInfo> definitions = std::span(m_Storage).subspan(m_First);
    m_IsAscending = std::ranges::is_sorted(definitions, {}, &ContourDefInfo::Level);
}

// As much as there are definitions, so that the cost of many insertions stays in proportion.
void ContourDefinitionList::MakeRoomInFront() {
    const std::size_t room = std::max(m_Storage.size(), leastRoom);
    m_Storage.insert(m_Storage.begin(), room, ContourDefInfo());
    m_First = room;
}

// A list that is taken from in front and added to behind must not creep through memory.
void ContourDefinitionList::DropSurplusRoom() {
    if (m_First > 2 * (m_Storage.size() - m_First) + leastRoom) {
        m_Storage.erase(m_Storage.begin(),
                        m_Storage.begin() + static_cast<std::ptrdiff_t>(m_First));
        m_First = 0;
    }
}

std::size_t ContourDefinitionList::Insert(std::size_t position, const ContourDefInfo& def) {
    const ContourDefInfo inserted = def;  // it may stand in this list
    if (position - m_First > m_Storage.size() - position) {
        m_Storage.insert(m_Storage.begin() + static_cast<std::ptrdiff_t>(position), inserted);
        return position;
    }
    if (m_First == 0) {
        MakeRoomInFront();
        position += m_First;
    }
    const auto begin = m_Storage.begin() + static_cast<std::ptrdiff_t>(m_First);
    const auto end = m_Storage.begin() + static_cast<std::ptrdiff_t>(position);
    *std::move(begin, end, begin - 1) = inserted;
    --m_First;
    return position - 1;
}

int ContourDefinitionList::Add(const ContourDefInfo& def) {
    if (std::isnan(def.Level)) {
        return -1;
    }
    if (NumContours() == 0 || (m_IsAscending && m_Storage.back().Level < def.Level)) {
        m_Storage.push_back(def);
        return NumContours() - 1;
    }
    const std::size_t position = LowerBound(def.Level);
    if (position < m_Storage.size() && m_Storage[position].Level == def.Level) {
        return -1;
    }
    return IndexOf(Insert(position, def));
}

int ContourDefinitionList::Set(int index, const ContourDefInfo& def) {
    if (!HoldsIndex(index) || std::isnan(def.Level)) {
        return -1;
    }
    ContourDefInfo& old = m_Storage[PositionOf(index)];
    if (old.Level == def.Level) {
        old = def;
        return index;
    }
    const ContourDefInfo moved = def;  // it may stand in this list
    Remove(index);
    return Add(moved);
}

bool ContourDefinitionList::Remove(int index) {
    if (!HoldsIndex(index)) {
        return false;
    }
    const auto begin = m_Storage.begin() + static_cast<std::ptrdiff_t>(m_First);
    if (index < NumContours() / 2) {
        std::move_backward(begin, begin + index, begin + index + 1);
        ++m_First;
        DropSurplusRoom();
    } else {
        m_Storage.erase(begin + index);
    }
    return true;
}

bool ContourDefinitionList::Generate(double lowest, double highest, double interval) {
    Clear();
    if (!(lowest < highest) || !(interval > 0.0) || !std::isfinite(lowest) ||
        !std::isfinite(highest)) {
        return false;
    }
    const double first = FirstLevel(lowest, interval);
    const int count = CountLevels(first, highest, interval);
    if (count < 0) {
        return false;
    }
    m_Storage.reserve(static_cast<std::size_t>(count));
    ContourDefInfo definition;
    for (double level = first; level <= highest; level += interval) {
        definition.Level = level;
        m_Storage.push_back(definition);
    }
    return true;
}

bool ContourDefinitionList::Generate(const ColorTable& table, bool invert) {
    Clear();
    ContourDefInfo definition;
    for (int i = 0; i < table.NumEntries(); ++i) {
        const auto color = static_cast<unsigned int>(table.EntryColor(i));
        definition.Level = table.EntryValue(i);
        definition.Color = invert ? 255U - color : color;
        m_Storage.push_back(definition);
    }
    NoteOrder();
    return NumContours() != 0;
}

bool ContourDefinitionList::Load(const char* path) {
    if (!path || !*path || !MARLINSUITE::ReadContourFile(path, m_Storage)) {
        return false;
    }
    NoteOrder();
    return NumContours() != 0;
}

bool ContourDefinitionList::Save(const char* path) const {
    if (!path || !*path || NumContours() == 0) {
        return false;
    }
    return MARLINSUITE::WriteContourFile(path, std::span(m_Storage).subspan(m_First));
}
