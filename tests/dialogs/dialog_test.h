// SPDX-License-Identifier: MIT
#pragma once

#include "stage.h"
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/resources/dialogs.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace MARLINSUITE;
using PLATFORM::DialogUser;
using Texts = std::vector<std::string>;

/// What a person sees of a running dialog, and does in it.
class Screen {
public:
    Screen(Stage& stage, DialogUser& user) : m_Stage(stage), User(user) {}

    [[nodiscard]] HWND Window(int id) const {
        const CWnd* const window = CWnd::FromHandle(User.Dialog())->GetDlgItem(id);
        return window ? window->GetSafeHwnd() : nullptr;
    }
    [[nodiscard]] std::string Title() const { return std::string(System().Text(User.Dialog())); }
    [[nodiscard]] std::string Text(int id) const { return std::string(System().Text(Window(id))); }
    [[nodiscard]] bool IsEnabled(int id) const { return System().IsEnabled(Window(id)); }
    [[nodiscard]] bool HasFocus(int id) const {
        return System().Focus(User.Dialog()) == Window(id);
    }

    /// The rows of the list, the cells of each with "|" between them.
    [[nodiscard]] Texts Rows() const {
        Texts rows;
        for (int row = 0; row < System().RowCount(List()); ++row) {
            std::string cells;
            for (int column = 0; column < 4; ++column) {
                cells += (column ? "|" : "") + std::string(System().Cell(List(), row, column));
            }
            rows.push_back(cells);
        }
        return rows;
    }
    /// The cells of one column.
    [[nodiscard]] Texts Column(int column) const {
        Texts cells;
        for (int row = 0; row < System().RowCount(List()); ++row) {
            cells.emplace_back(System().Cell(List(), row, column));
        }
        return cells;
    }
    [[nodiscard]] std::vector<int> SelectedRows() const {
        std::vector<int> rows;
        for (int row = 0; row < System().RowCount(List()); ++row) {
            if (System().IsSelected(List(), row)) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    /// Whether the row is the one shown as the place where the user is.
    [[nodiscard]] bool IsThePlace(int row) const {
        return SelectedRows() == std::vector{row} && System().FocusedRow(List()) == row &&
               System().SelectionMark(List()) == row && HasFocus(CONTROL_CONTOUR_LIST) &&
               m_Stage.IsInView(List(), row);
    }
    [[nodiscard]] COLORREF Swatch(int row) const { return m_Stage.SwatchPixel(List(), row, 8, 8); }
    [[nodiscard]] HWND List() const { return Window(CONTROL_CONTOUR_LIST); }
    [[nodiscard]] PLATFORM::WindowSystem& System() const { return m_Stage.System(); }

private:
    Stage& m_Stage;

public:
    DialogUser& User;
};

/// Runs a case on each window system.
class DialogTest : public testing::TestWithParam<StageKind> {
protected:
    using Act = std::function<void(Screen&)>;

    DialogTest() : m_Stage(GetParam().Make()) {
        PLATFORM::WindowSystem::SetCurrent(&m_Stage->System());
    }
    ~DialogTest() override {
        EXPECT_TRUE(Script().IsDone()) << "a dialog or a box was never shown";
        PLATFORM::WindowSystem::SetCurrent(nullptr);
    }

    [[nodiscard]] PLATFORM::UserScript& Script() const { return m_Stage->Script(); }
    /// What is done in the next dialog that is shown.
    void InDialog(const Act& act) const {
        Script().InDialog([this, act](DialogUser& user) {
            Screen screen(*m_Stage, user);
            act(screen);
        });
    }

    std::unique_ptr<Stage> m_Stage;
};

#define MARLIN_ON_EVERY_STAGE(suite)                                     \
    INSTANTIATE_TEST_SUITE_P(On, suite, testing::ValuesIn(StageKinds()), \
                             [](const auto& kind) { return kind.param.Name; })
