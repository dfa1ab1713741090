// SPDX-License-Identifier: MIT
#include <marlin/contours/dialogs/detail/edited_contours.h>

#include <algorithm>
#include <utility>

namespace MARLINSUITE::detail {

namespace {

using Definition = ContourDefinitionList::ContourDefInfo;

std::vector<Definition> Part(const ContourDefinitionList& list, int from, int to) {
    std::vector<Definition> part;
    part.reserve(static_cast<std::size_t>(to - from));
    for (int i = from; i < to; ++i) {
        part.push_back(list[i]);
    }
    return part;
}

int CommonStart(const ContourDefinitionList& a, const ContourDefinitionList& b) {
    const int most = std::min(a.NumContours(), b.NumContours());
    int count = 0;
    while (count < most && a[count] == b[count]) {
        ++count;
    }
    return count;
}

// Of what is not in the common start.
int CommonEnd(const ContourDefinitionList& a, const ContourDefinitionList& b, int start) {
    const int most = std::min(a.NumContours(), b.NumContours()) - start;
    int count = 0;
    while (count < most && a[a.NumContours() - 1 - count] == b[b.NumContours() - 1 - count]) {
        ++count;
    }
    return count;
}

}  // namespace

void EditedContours::Start(ContourDefinitionList list) {
    m_List = std::move(list);
    m_Changes.clear();
    m_Made = 0;
}

void EditedContours::Remember(const ContourDefinitionList& before) {
    const int start = CommonStart(before, m_List);
    const int end = CommonEnd(before, m_List, start);
    Change change = {start, Part(before, start, before.NumContours() - end),
                     Part(m_List, start, m_List.NumContours() - end)};
    if (!change.Before.empty() || !change.After.empty()) {
        m_Changes.resize(m_Made);
        m_Changes.push_back(std::move(change));
        ++m_Made;
    }
}

int EditedContours::Undo() {
    if (!CanUndo()) {
        return -1;
    }
    const Change& undone = m_Changes[--m_Made];
    m_List.Replace(undone.Index, static_cast<int>(undone.After.size()), undone.Before);
    return undone.Index;
}

int EditedContours::Redo() {
    if (!CanRedo()) {
        return -1;
    }
    const Change& redone = m_Changes[m_Made++];
    m_List.Replace(redone.Index, static_cast<int>(redone.Before.size()), redone.After);
    return redone.Index;
}

}  // namespace MARLINSUITE::detail
