// SPDX-License-Identifier: MIT
#include "editor_test.h"
#include <marlin/contours/dialogs/edit_contour_list.h>
#include <marlin/platform/drawing/drawing_constants.h>

#include <algorithm>

namespace {

constexpr PLATFORM::HeldKeys control = {false, true};
constexpr PLATFORM::HeldKeys shift = {true, false};

class ContourCommandsTest : public EditorTest {
protected:
    static void Select(Screen& screen, const std::vector<int>& rows) {
        EXPECT_TRUE(screen.User.SelectRows(CONTROL_CONTOUR_LIST, rows));
    }
    static Definition Colored(double level, unsigned long color) {
        return {0.0F, 0, level, color, false};
    }
};

TEST_P(ContourCommandsTest, NewLevelsLieHalfWayToTheirNeighbours) {
    EditThree([](Screen& screen) {
        Select(screen, {1});
        screen.User.Press('D', control);
        EXPECT_EQ(screen.Column(0), (Texts{"20.00", "15.00", "10.00", "5.00"}));
        EXPECT_TRUE(screen.IsThePlace(1));
        Select(screen, {0});
        screen.User.Press('D', control);
        EXPECT_EQ(screen.Column(0)[0], "21.00") << "nothing lies above";
        Select(screen, {3});
        screen.User.Press('I', control);
        EXPECT_EQ(screen.Column(0), (Texts{"21.00", "20.00", "15.00", "10.00", "7.50", "5.00"}));
        Select(screen, {5});
        screen.User.Press('I', control);
        EXPECT_EQ(screen.Column(0).size(), 6U) << "nothing lies below";
    });
}

TEST_P(ContourCommandsTest, ALevelIsTypedInPlace) {
    EditThree([this](Screen& screen) {
        const auto type = [&screen](const char* text) {
            Select(screen, {1});
            screen.User.Press(VK_F2);
            return screen.User.Type(CONTROL_CONTOUR_LIST, text);
        };
        EXPECT_TRUE(type("12"));
        EXPECT_EQ(screen.Column(0), (Texts{"20.00", "12.00", "5.00"}));
        EXPECT_TRUE(type("7,5"));
        EXPECT_TRUE(type("20"));
        EXPECT_EQ(screen.Column(0), (Texts{"20.00", "12.00", "5.00"}));
        ASSERT_EQ(Messages().size(), 2U);
        EXPECT_EQ(Messages()[0], "Error: Level: 7,5 is no number; use a point");
        EXPECT_TRUE(Messages()[1].starts_with("Error: Failed to implement modifications."));
    });
}

TEST_P(ContourCommandsTest, ColorsAreCopiedAndPastedAsText) {
    Edit({Colored(5, 1), Colored(10, 2), Colored(20, 0x804000)}, [this](Screen& screen) {
        PLATFORM::WindowSystem& system = screen.System();
        Select(screen, {0});
        screen.User.Press('C', control);
        EXPECT_EQ(std::string(system.ClipboardText()), "#004080");
        const std::pair<const char*, COLORREF> table[] = {
            {" #010203\n", 0x030201}, {"0,64,128", 0x804000}, {"dxf:10", 0x0000FF}};
        for (const auto& [text, color] : table) {
            system.SetClipboardText(text);
            Select(screen, {1, 2});
            screen.User.Press('V', control);
            EXPECT_EQ(screen.Swatch(1), color) << text;
            EXPECT_EQ(screen.Swatch(2), color) << text;
            EXPECT_EQ(screen.SelectedRows(), (std::vector{1, 2}));
        }
        EXPECT_EQ(screen.Swatch(0), 0x804000U);
        system.SetClipboardText("deep");
        screen.User.Press('V', control);
        EXPECT_EQ(Messages().size(), 1U);
        system.SetClipboardText("#010203");
        InDialog([&system](Screen& properties) {
            properties.System().SetFocus(properties.Window(CONTROL_COLOR));
            properties.User.Press('V', control);
            system.SetClipboardText("");
            properties.User.Press('C', control);
            EXPECT_EQ(
                std::string(properties.System().Description(properties.Window(CONTROL_COLOR))),
                "Color #010203");
            properties.User.Click(IDOK);
        });
        screen.User.DoubleClick(CONTROL_CONTOUR_LIST, 0);
        EXPECT_EQ(std::string(system.ClipboardText()), "#010203");
        EXPECT_EQ(screen.Swatch(0), 0x030201U);
    });
}

TEST_P(ContourCommandsTest, ATableRecolorsTheSelectedRowsOrAll) {
    const std::string table = m_Folder.Write(
        "a.col", "[ColorTable]\nBelow=255\nEntry(0)=6,0,255,0\nEntry(1)=15,0,0,255\n");
    EditThree([&](Screen& screen) {
        const auto recolor = [&](const std::vector<int>& rows) {
            Select(screen, rows);
            Script().AnswerMenu(COMMAND_RECOLOR);
            Script().AnswerFile(table.c_str());
            screen.User.RightClick(CONTROL_CONTOUR_LIST, rows.empty() ? -1 : rows.front());
            return std::vector{screen.Swatch(0), screen.Swatch(1), screen.Swatch(2)};
        };
        EXPECT_EQ(recolor({1}), (std::vector<COLORREF>{CLR_INVALID, 0x00FF00, CLR_INVALID}));
        EXPECT_EQ(recolor({}), (std::vector<COLORREF>{0xFF0000, 0x00FF00, 0x0000FF}));
        EXPECT_EQ(screen.Column(0), (Texts{"20.00", "10.00", "5.00"}));
        Script().AnswerMenu(COMMAND_RECOLOR);
        Script().AnswerFile(m_Folder.File("none.col").c_str());
        screen.User.RightClick(CONTROL_CONTOUR_LIST, 0);
        EXPECT_EQ(Messages(), Texts{"Error: The file holds no color table."});
    });
}

TEST_P(ContourCommandsTest, TheMenuOffersWhatCanBeDone) {
    EditThree([this](Screen& screen) {
        const auto offered = [&](const std::vector<int>& rows, int clicked) {
            Select(screen, rows);
            Script().AnswerMenu(0);
            screen.User.RightClick(CONTROL_CONTOUR_LIST, clicked);
            std::vector<int> commands;
            for (const auto& item : Script().Menus().back().Items) {
                if (item.Id != 0 && item.IsEnabled) {
                    commands.push_back(item.Id);
                }
            }
            std::ranges::sort(commands);
            return commands;
        };
        std::vector<int> always = {CONTROL_ADD, CONTROL_COLOR_TABLE, CONTROL_RANGE, COMMAND_RECOLOR,
                                   COMMAND_SELECT_ALL};
        EXPECT_EQ(offered({}, -1), always);
        std::vector<int> ofSeveral = {CONTROL_EDIT,        CONTROL_ADD,     CONTROL_COLOR_TABLE,
                                      CONTROL_REMOVE,      CONTROL_RANGE,   COMMAND_COPY_COLOR,
                                      COMMAND_PASTE_COLOR, COMMAND_RECOLOR, COMMAND_SELECT_ALL};
        EXPECT_EQ(offered({0, 1}, 1), ofSeveral);
        ofSeveral.insert(ofSeveral.end(), {COMMAND_EDIT_LEVEL, COMMAND_DUPLICATE});
        std::ranges::sort(ofSeveral);
        EXPECT_EQ(offered({0}, 2), ofSeveral) << "the row below is clicked on; none lies below it";
        EXPECT_EQ(screen.SelectedRows(), std::vector{2});
        Script().AnswerMenu(COMMAND_SELECT_ALL);
        screen.User.RightClick(CONTROL_CONTOUR_LIST, 2);
        EXPECT_EQ(screen.SelectedRows(), (std::vector{0, 1, 2}));
    });
}

TEST_P(ContourCommandsTest, ARowIsToldInWords) {
    Edit({{1.5F, 1, 5, 0x0000FF, true}}, [](Screen& screen) {
        EXPECT_EQ(std::string(PLATFORM::AskTip(screen.Window(CONTROL_CONTOUR_LIST), 0)),
                  "Color #ff0000, nearest palette index 10, Dashed, width 1.5");
    });
}

TEST_P(ContourCommandsTest, OnlyPlainKeysAndClicksEdit) {
    EditThree([](Screen& screen) {
        const Texts before = screen.Rows();
        Select(screen, {1});
        for (const int key : {VK_DELETE, VK_INSERT, VK_F2}) {
            screen.User.Press(key, shift);
            screen.User.Press(key, control);
        }
        EXPECT_EQ(screen.Rows(), before);
        Select(screen, {});
        screen.User.Press(VK_DELETE);
        EXPECT_EQ(screen.Rows(), before);
        EXPECT_TRUE(screen.User.Press(VK_RETURN)) << "OK";
        EXPECT_FALSE(screen.User.Click(IDOK)) << "the editor is closed";
    });
}

TEST_P(ContourCommandsTest, ShiftSelectsFromTheMark) {
    EditThree([](Screen& screen) {
        screen.System().SetFocus(screen.Window(CONTROL_CONTOUR_LIST));
        screen.User.Press(VK_DOWN);
        EXPECT_EQ(screen.SelectedRows(), std::vector{0}) << "the first key";
        Select(screen, {2});
        screen.User.Press(VK_DELETE);
        screen.User.Press('Z', control);
        EXPECT_TRUE(screen.IsThePlace(2)) << "what came back";
        screen.User.Press(VK_UP, shift);
        EXPECT_EQ(screen.SelectedRows(), (std::vector{1, 2}));
        screen.User.Press(VK_UP, shift);
        EXPECT_EQ(screen.SelectedRows(), (std::vector{0, 1, 2}));
        EXPECT_EQ(screen.List().SelectionMark(), 2);
        screen.User.Press(VK_DOWN, shift);
        EXPECT_EQ(screen.SelectedRows(), (std::vector{1, 2}));
    });
}

TEST_P(ContourCommandsTest, ManyLevelsAreAskedFor) {
    EditThree([this](Screen& screen) {
        const Texts before = screen.Column(0);
        ConfirmRange("0", "10000", "1");
        Script().AnswerMessage(IDNO);
        screen.User.Click(CONTROL_RANGE);
        EXPECT_EQ(Messages(), Texts{"Contours - sheet: So many levels would be generated: 10001"});
        EXPECT_EQ(screen.Column(0), before);
        ConfirmRange("0", "9999", "1");
        screen.User.Click(CONTROL_RANGE);
        EXPECT_EQ(Messages().size(), 1U);
        EXPECT_EQ(screen.List().RowCount(), 10'000);
    });
}

TEST_P(ContourCommandsTest, AMessageFromAThreadReachesTheDialog) {
    struct Editor : CContourEditor {
        std::vector<UINT> Got;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message >= WM_USER || message == 2029) {
                Got.push_back(message);
            }
            return CContourEditor::WindowProc(message, wParam, lParam);
        }
    } editor;
    InDialog([&editor](Screen& screen) {
        editor.PostMessage(WM_USER + 1);
        editor.PostMessage(2029);
        screen.User.Idle();
        EXPECT_EQ(editor.Got, (std::vector<UINT>{WM_USER + 1, 2029}));
    });
    editor.DoModal();
}

MARLIN_ON_EVERY_STAGE(ContourCommandsTest);

}  // namespace
