// SPDX-License-Identifier: MIT
#pragma once

#include "stage.h"
#include <marlin/platform/windowing/c_wnd.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/resources/dialogs.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace MARLINSUITE;
using PLATFORM::DialogUser;
using Texts = std::vector<std::string>;

/// A running dialog as a person sees it, and that person.
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

    /// The rows of the contour list, the cells of each with "|" between them.
    [[nodiscard]] Texts Rows() const {
        Texts rows = Column(0);
        for (int row = 0; row < List().RowCount(); ++row) {
            for (int column = 1; column < List().ColumnCount(); ++column) {
                rows[static_cast<size_t>(row)] += "|" + Cell(row, column);
            }
        }
        return rows;
    }
    [[nodiscard]] std::string Cell(int row, int column) const {
        const HWND list = Window(CONTROL_CONTOUR_LIST);
        return std::string(PLATFORM::AskCell(list, row, column).Text);
    }
    [[nodiscard]] Texts Column(int column) const {
        Texts cells;
        for (int row = 0; row < List().RowCount(); ++row) {
            cells.push_back(Cell(row, column));
        }
        return cells;
    }
    [[nodiscard]] std::vector<int> SelectedRows() const {
        std::vector<int> rows;
        for (int row = 0; row < List().RowCount(); ++row) {
            if (List().IsSelected(row)) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    /// True when the row alone is selected, is where the keyboard is, and is in view.
    [[nodiscard]] bool IsThePlace(int row) const {
        return SelectedRows() == std::vector{row} && List().FocusedRow() == row &&
               List().SelectionMark() == row && HasFocus(CONTROL_CONTOUR_LIST) &&
               m_Stage.IsInView(Window(CONTROL_CONTOUR_LIST), row);
    }
    /// A pixel in the middle of a row's swatch.
    [[nodiscard]] COLORREF Swatch(int row) const {
        return m_Stage.SwatchPixel(Window(CONTROL_CONTOUR_LIST), row, 8, 8);
    }
    [[nodiscard]] PLATFORM::ReportList& List() const {
        return *System().FindList(Window(CONTROL_CONTOUR_LIST));
    }
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
    /// Acts in the next dialog that is shown.
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
