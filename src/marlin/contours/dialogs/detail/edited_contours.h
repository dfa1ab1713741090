// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/contours/contour_definition_list.h>

#include <vector>

namespace MARLINSUITE::detail {

/// A list that is edited, with its changes, each of which can be taken back and made again. A
/// change is kept as the definitions that it replaced and those that it put there, so that a list
/// of a million costs no more for an edit of one.
class EditedContours {
public:
    [[nodiscard]] const ContourDefinitionList& List() const noexcept { return m_List; }
    /// Starts with a list that has no changes.
    void Start(ContourDefinitionList list);

    /// Lets `change` change the list, and remembers what it changed. Returns what it returns.
    template <typename Work>
    auto Make(const Work& change) {
        const ContourDefinitionList before = m_List;
        const auto result = change(m_List);
        Remember(before);
        return result;
    }

    [[nodiscard]] bool CanUndo() const noexcept { return m_Made > 0; }
    [[nodiscard]] bool CanRedo() const noexcept { return m_Made < m_Changes.size(); }
    /// Take the last change back, or make it again. The index of the first definition that is
    /// another now, the number of definitions where only some at the end went; -1 for no change.
    int Undo();
    int Redo();

private:
    using Definitions = std::vector<ContourDefinitionList::ContourDefInfo>;
    struct Change {
        int Index;
        Definitions Before;
        Definitions After;
    };

    void Remember(const ContourDefinitionList& before);

    ContourDefinitionList m_List;
    std::vector<Change> m_Changes;
    std::size_t m_Made = 0;  ///< The changes after these have been taken back.
};

}  // namespace MARLINSUITE::detail
