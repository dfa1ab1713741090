// SPDX-License-Identifier: MIT
#include <marlin/base/colors/color_table.h>
#include <marlin/color/color_text.h>
#include <marlin/contours/dialogs/detail/contour_boxes.h>
#include <marlin/contours/dialogs/detail/contour_commands.h>
#include <marlin/platform/windowing/c_dialog.h>
#include <marlin/platform/windowing/c_menu.h>
#include <marlin/platform/windowing/window_system.h>
#include <marlin/resources/dialogs.h>
#include <marlin/resources/texts.h>

#include <algorithm>
#include <numeric>

namespace MARLINSUITE::detail {

using PLATFORM::WindowSystem;

namespace {

struct MenuEntry {
    int Command;  // 0 for a line
    MESSAGE Text;
};

constexpr MenuEntry menuEntries[] = {{COMMAND_UNDO, MESSAGE::MENU_UNDO},
                                     {COMMAND_REDO, MESSAGE::MENU_REDO},
                                     {0, {}},
                                     {CONTROL_ADD, MESSAGE::MENU_ADD},
                                     {COMMAND_DUPLICATE, MESSAGE::MENU_DUPLICATE},
                                     {COMMAND_INSERT_BETWEEN, MESSAGE::MENU_INSERT_BETWEEN},
                                     {CONTROL_EDIT, MESSAGE::MENU_EDIT},
                                     {COMMAND_EDIT_LEVEL, MESSAGE::MENU_EDIT_LEVEL},
                                     {CONTROL_REMOVE, MESSAGE::MENU_REMOVE},
                                     {0, {}},
                                     {COMMAND_COPY_COLOR, MESSAGE::MENU_COPY_COLOR},
                                     {COMMAND_PASTE_COLOR, MESSAGE::MENU_PASTE_COLOR},
                                     {COMMAND_RECOLOR, MESSAGE::MENU_RECOLOR},
                                     {0, {}},
                                     {COMMAND_SELECT_ALL, MESSAGE::MENU_SELECT_ALL},
                                     {CONTROL_RANGE, MESSAGE::MENU_RANGE},
                                     {CONTROL_COLOR_TABLE, MESSAGE::MENU_COLOR_TABLE}};

// The color of the last entry at or below the level.
unsigned long ColorAt(const ColorTable& table, double level) {
    int entry = table.NumEntries() - 1;
    while (entry >= 0 && !(table.EntryValue(entry) <= level)) {
        --entry;
    }
    return entry < 0 ? table.BelowColor() : table.EntryColor(entry);
}

}  // namespace

int ContourCommands::OfKey(WPARAM key, bool isShifted) noexcept {
    if (isShifted) {
        return key == 'Z' ? COMMAND_REDO : 0;
    }
    switch (key) {
        case 'A':
            return COMMAND_SELECT_ALL;
        case 'C':
            return COMMAND_COPY_COLOR;
        case 'D':
            return COMMAND_DUPLICATE;
        case 'I':
            return COMMAND_INSERT_BETWEEN;
        case 'V':
            return COMMAND_PASTE_COLOR;
        case 'Z':
            return COMMAND_UNDO;
        default:
            return 0;
    }
}

bool ContourCommands::CanDo(int command) const {
    const UINT selected = m_List.Control.GetSelectedCount();
    switch (command) {
        case COMMAND_UNDO:
            return m_List.Edited.CanUndo();
        case COMMAND_REDO:
            return m_List.Edited.CanRedo();
        case COMMAND_EDIT_LEVEL:
        case COMMAND_DUPLICATE:
            return selected == 1;
        case COMMAND_INSERT_BETWEEN:
            return selected == 1 && m_List.DefinitionOfRow(m_List.FirstSelected()) > 0;
        case CONTROL_EDIT:
        case CONTROL_REMOVE:
        case COMMAND_COPY_COLOR:
        case COMMAND_PASTE_COLOR:
            return selected > 0;
        case COMMAND_RECOLOR:
        case COMMAND_SELECT_ALL:
            return m_List.Definitions().NumContours() > 0;
        default:
            return true;
    }
}

void ContourCommands::Do(int command) {
    if (!CanDo(command)) {
        return;
    }
    switch (command) {
        case COMMAND_UNDO:
            return ShowChanged(m_List.Edited.Undo());
        case COMMAND_REDO:
            return ShowChanged(m_List.Edited.Redo());
        case COMMAND_EDIT_LEVEL:
            return m_List.Control.EditLabel(m_List.FirstSelected());
        case COMMAND_DUPLICATE:
            return Duplicate();
        case COMMAND_INSERT_BETWEEN:
            return InsertBetween();
        case COMMAND_COPY_COLOR:
            return CopyColor();
        case COMMAND_PASTE_COLOR:
            return PasteColor();
        case COMMAND_RECOLOR:
            return RecolorFromTable();
        case COMMAND_SELECT_ALL:
            m_List.Control.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
            return;
        default:
            // One of a button.
            m_Editor.SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
    }
}

int ContourCommands::Choose(CPoint place) const {
    CMenu menu;
    for (const MenuEntry& entry : menuEntries) {
        if (entry.Command == 0) {
            menu.AppendMenu(MF_SEPARATOR);
        } else {
            menu.AppendMenu(CanDo(entry.Command) ? MF_STRING : MF_STRING | MF_GRAYED,
                            static_cast<UINT>(entry.Command), CString(Message(entry.Text)));
        }
    }
    return menu.TrackPopupMenu(TPM_RETURNCMD, place.x, place.y, &m_Editor);
}

// After a change from that definition on was taken back or made again.
void ContourCommands::ShowChanged(int index) {
    m_List.Refill();
    const int count = m_List.Definitions().NumContours();
    if (count > 0) {
        m_List.Select(m_List.DefinitionOfRow(std::min(index, count - 1)));
    }
}

// Adds a definition like that of a row, and selects it.
void ContourCommands::AddBeside(int row, double level) {
    ContourList::ContourDefInfo added = m_List.At(row);
    added.Level = level;
    if (m_List.Edited.Make([&added](auto& list) { return list.Add(added); }) < 0) {
        ShowError(m_Editor, CString(Message(MESSAGE::CONTOUR_NOT_ADDED)));
    }
    m_List.Refill();
    m_List.SelectLevel(level);
}

void ContourCommands::Duplicate() {
    const int row = m_List.FirstSelected();
    const double level = m_List.At(row).Level;
    AddBeside(row, row == 0 ? level + 1.0 : std::midpoint(level, m_List.At(row - 1).Level));
}

void ContourCommands::InsertBetween() {
    const int row = m_List.FirstSelected();
    AddBeside(row, std::midpoint(m_List.At(row).Level, m_List.At(row + 1).Level));
}

void ContourCommands::CopyColor() const {
    const RGBColor color(m_List.At(m_List.FirstSelected()).Color);
    WindowSystem::Current().SetClipboardText(CString(ColorText(color)));
}

template <typename ColorOf>
void ContourCommands::Recolor(const std::vector<int>& rows, const ColorOf& colorOf) {
    m_List.Edited.Make([&](ContourDefinitionList& list) {
        for (const int row : rows) {
            ContourList::ContourDefInfo changed = list[m_List.DefinitionOfRow(row)];
            changed.Color = colorOf(changed.Level);
            list.Set(m_List.DefinitionOfRow(row), changed);
        }
        return true;
    });
    m_List.Refill();
}

void ContourCommands::PasteColor() {
    const CString text = WindowSystem::Current().ClipboardText().Trim();
    const auto color = ParseColor(text.View());
    if (!color) {
        ShowError(m_Editor, CString(Message(MESSAGE::NO_COLOR_IN_CLIPBOARD)) + CString(ColorForms));
        return;
    }
    const std::vector<int> rows = m_List.SelectedRows();
    Recolor(rows, [&color](double) { return static_cast<unsigned long>(*color); });
    m_List.SelectRows(rows);
}

void ContourCommands::RecolorFromTable() {
    ColorTable table;
    if (!AskForTable(m_Editor, table)) {
        return;
    }
    if (table.NumEntries() == 0) {
        ShowError(m_Editor, CString(Message(MESSAGE::NO_COLOR_TABLE)));
        return;
    }
    const std::vector<int> selected = m_List.SelectedRows();
    std::vector<int> rows = selected;
    if (rows.empty()) {
        rows.resize(static_cast<std::size_t>(m_List.Definitions().NumContours()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    Recolor(rows, [&table](double level) { return ColorAt(table, level); });
    m_List.SelectRows(selected);
}

}  // namespace MARLINSUITE::detail
