// SPDX-License-Identifier: MIT
#include "editor_test.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <random>

namespace {

constexpr PLATFORM::HeldKeys control = {false, true};
constexpr PLATFORM::HeldKeys both = {true, true};

class ContourUndoTest : public EditorTest {
protected:
    static void Select(Screen& screen, const std::vector<int>& rows) {
        EXPECT_TRUE(screen.User.SelectRows(CONTROL_CONTOUR_LIST, rows));
    }
};

TEST_P(ContourUndoTest, EveryChangeIsUndoneAndMadeAgain) {
    EditThree([this](Screen& screen) {
        const std::vector<std::function<void()>> changes = {
            [&] { Confirm("7"), screen.User.Click(CONTROL_ADD); },
            [&] { Confirm("8", "2"), screen.User.DoubleClick(CONTROL_CONTOUR_LIST, 1); },
            [&] {
                Select(screen, {0, 2}), screen.User.Press(VK_DELETE);
            },
            [&] { ConfirmRange("0", "2", "1"), screen.User.Click(CONTROL_RANGE); },
            [&] { Select(screen, {1}), screen.User.Press('D', control); },
            [&] { Select(screen, {1}), screen.User.Press('I', control); }};
        std::vector<Texts> states = {screen.Rows()};
        for (const auto& change : changes) {
            change();
            EXPECT_NE(screen.Rows(), states.back());
            states.push_back(screen.Rows());
        }
        for (size_t state = states.size() - 1; state-- > 0;) {
            screen.User.Press('Z', control);
            EXPECT_EQ(screen.Rows(), states[state]);
        }
        screen.User.Press('Z', control);
        EXPECT_EQ(screen.Rows(), states[0]) << "there is nothing left to undo";
        for (size_t state = 1; state < states.size(); ++state) {
            screen.User.Press('Z', both);
            EXPECT_EQ(screen.Rows(), states[state]);
        }
        screen.User.Press('Z', control);
        Select(screen, {0});
        screen.User.Press(VK_DELETE);
        const Texts removed = screen.Rows();
        screen.User.Press('Z', both);
        EXPECT_EQ(screen.Rows(), removed) << "a new change forgets what was undone";
    });
}

// Acts at random on the editor and on a plain map of levels with a list of its states.
TEST_P(ContourUndoTest, UndoGoesBackThroughAnyChanges) {
    const unsigned int seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const int steps = GetParam().Name == "Headless" ? 10'000 : 100;
    EditThree([&](Screen& screen) {
        using Model = std::map<double, bool, std::greater<>>;
        std::vector<Model> states = {{{20, false}, {10, false}, {5, false}}};
        size_t now = 0;
        for (int step = 0; step < steps && !HasFailure(); ++step) {
            Model next = states[now];
            const int row = next.empty() ? -1 : static_cast<int>(random() % next.size());
            const double level = static_cast<double>(random() % 40);
            const auto act = random() % 6;
            if (act == 0 || row < 0) {
                next.emplace(level, false);
                Confirm(std::to_string(static_cast<int>(level)));
                screen.User.Click(CONTROL_ADD);
            } else if (act == 1) {
                next.erase(std::next(next.begin(), row));
                Select(screen, {row});
                screen.User.Press(VK_DELETE);
            } else if (act == 2) {
                const auto edited = std::next(next.begin(), row);
                edited->second = !edited->second;
                InDialog([](Screen& properties) {
                    properties.User.Click(CONTROL_SHOW_LABELS);
                    properties.User.Click(IDOK);
                });
                screen.User.DoubleClick(CONTROL_CONTOUR_LIST, row);
            } else {
                const bool isUndo = act < 5;
                screen.User.Press('Z', isUndo ? control : both);
                now = isUndo ? now - (now > 0 ? 1 : 0) : std::min(now + 1, states.size() - 1);
                next = states[now];
            }
            if (next != states[now]) {
                states.resize(++now);
                states.push_back(next);
            }
            Texts shown;
            for (const auto& [modelLevel, labels] : next) {
                char text[64];
                std::snprintf(text, sizeof text, "%.2f|%s|0.0|Continous", modelLevel,
                              labels ? "Yes" : "No");
                shown.emplace_back(text);
            }
            ASSERT_EQ(screen.Rows(), shown) << "step " << step;
        }
    });
}

MARLIN_ON_EVERY_STAGE(ContourUndoTest);

}  // namespace
