// SPDX-License-Identifier: MIT
#include "editor_test.h"
#include <marlin/contours/dialogs/edit_contour_list.h>
#include <marlin/platform/drawing/drawing_constants.h>

namespace {

class ContourEditorTest : public EditorTest {};

constexpr const char* notAdded =
    "Error: The contour definition is already in the list, it was not added.";
constexpr const char* notModified =
    "Error: Failed to implement modifications.\nReason:\n\tThe depth was modfied to a value\n"
    "\tthat is already in the list!";

TEST_P(ContourEditorTest, OpensWithoutFileNameEmptyAndUntitled) {
    Run("", [](Screen& screen) {
        EXPECT_EQ(screen.Title(), "Contours");
        EXPECT_EQ(screen.Rows(), Texts());
        const Texts headings = {"Color Level", "Annotation", "Width", "Type"};
        const int widths[] = {70, 50, 50, 50};
        ASSERT_EQ(screen.List().ColumnCount(), 4);
        for (int column = 0; column < 4; ++column) {
            EXPECT_EQ(std::string(screen.List().Heading(column)),
                      headings[static_cast<size_t>(column)]);
            EXPECT_EQ(screen.List().ColumnWidth(column), widths[column]);
        }
    });
}

TEST_P(ContourEditorTest, ShowsTheFileFromTheHighestLevelDown) {
    const std::vector<Definition> definitions = {
        {0.25F, 0, 5.0, 0x0000FF, false},
        {1.0F, 1, 10.126, 0x00FF00, true},
        {2.5F, 2, 20.0, 0xFF0000, false},
    };
    Edit(definitions, [](Screen& screen) {
        EXPECT_EQ(screen.Title(), "Contours - sheet");
        const Texts rows = {"20.00|No|2.5|Dot", "10.13|Yes|1.0|Dashed", "5.00|No|0.2|Continous"};
        EXPECT_EQ(screen.Rows(), rows);
        EXPECT_EQ(screen.Swatch(0), 0xFF0000U);
        EXPECT_EQ(screen.Swatch(1), 0x00FF00U);
        EXPECT_EQ(screen.Swatch(2), 0x0000FFU);
        EXPECT_EQ(screen.SelectedRows(), std::vector<int>());
    });
}

TEST_P(ContourEditorTest, ShowsNoSwatchForBlack) {
    Edit({At(5)}, [](Screen& screen) { EXPECT_EQ(screen.Swatch(0), CLR_INVALID); });
}

TEST_P(ContourEditorTest, SaysNothingOfAFileThatCannotBeLoaded) {
    for (const std::string& path :
         {m_Folder.File("none.cdf"), m_Folder.Write("b.cdf", "no file")}) {
        Run(path, [](Screen& screen) {
            EXPECT_TRUE(screen.Title().starts_with("Contours - "));
            EXPECT_EQ(screen.Rows(), Texts());
        });
    }
    EXPECT_EQ(Messages(), Texts());
}

TEST_P(ContourEditorTest, EnablesEditAndRemoveExactlyWhileARowIsSelected) {
    EditThree([](Screen& screen) {
        const auto expect = [&screen](bool enabled) {
            EXPECT_EQ(screen.IsEnabled(CONTROL_EDIT), enabled);
            EXPECT_EQ(screen.IsEnabled(CONTROL_REMOVE), enabled);
            for (const int id : {CONTROL_ADD, CONTROL_RANGE, CONTROL_COLOR_TABLE}) {
                EXPECT_TRUE(screen.IsEnabled(id));
            }
        };
        expect(false);
        EXPECT_FALSE(screen.User.Click(CONTROL_EDIT));
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1, 2});
        expect(true);
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {});
        expect(false);
        screen.User.Press(VK_UP);
        expect(true);
        screen.User.Click(CONTROL_REMOVE);
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {0, 1});
        screen.User.Click(CONTROL_REMOVE);
        EXPECT_EQ(screen.Rows(), Texts());
        expect(false);
    });
}

TEST_P(ContourEditorTest, AddsABlankDefinitionAndSelectsItsRow) {
    EditThree([this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {0});
        Confirm("7.5");
        screen.User.Click(CONTROL_ADD);
        const Texts levels = {"20.00", "10.00", "7.50", "5.00"};
        EXPECT_EQ(screen.Column(0), levels);
        EXPECT_EQ(screen.Rows()[2], "7.50|No|0.0|Continous");
        EXPECT_TRUE(screen.IsThePlace(2));
        EXPECT_TRUE(screen.IsEnabled(CONTROL_EDIT));
    });
}

TEST_P(ContourEditorTest, RefusesToAddALevelThatIsThere) {
    EditThree([this](Screen& screen) {
        Confirm("10");
        screen.User.Click(CONTROL_ADD);
        EXPECT_EQ(Messages(), Texts{notAdded});
        EXPECT_EQ(Script().Messages()[0].Type, MB_OK | MB_ICONERROR);
        const Texts levels = {"20.00", "10.00", "5.00"};
        EXPECT_EQ(screen.Column(0), levels);
        EXPECT_TRUE(screen.IsThePlace(1));
    });
}

TEST_P(ContourEditorTest, ChangesNothingWhenAddOrEditIsCancelled) {
    EditThree([this](Screen& screen) {
        const Texts before = screen.Rows();
        const auto cancel = [](Screen& properties) {
            properties.User.Type(CONTROL_LEVEL, "99");
            properties.User.Click(IDCANCEL);
        };
        InDialog(cancel);
        screen.User.Click(CONTROL_ADD);
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1});
        InDialog(cancel);
        screen.User.Click(CONTROL_EDIT);
        EXPECT_EQ(screen.Rows(), before);
        EXPECT_EQ(screen.SelectedRows(), std::vector{1});
    });
}

TEST_P(ContourEditorTest, EditsTheDefinitionOfTheRowAlsoOnDoubleClick) {
    EditThree([this](Screen& screen) {
        InDialog([](Screen& properties) {
            EXPECT_EQ(properties.Text(CONTROL_LEVEL), "20.00");
            properties.User.Type(CONTROL_LEVEL, "15");
            properties.User.Click(IDOK);
        });
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {0});
        screen.User.Click(CONTROL_EDIT);
        EXPECT_TRUE(screen.IsThePlace(0));
        Confirm("1");
        screen.User.DoubleClick(CONTROL_CONTOUR_LIST, 0);
        const Texts levels = {"10.00", "5.00", "1.00"};
        EXPECT_EQ(screen.Column(0), levels);
        EXPECT_TRUE(screen.IsThePlace(0)) << "the row stays, not the level";
    });
}

TEST_P(ContourEditorTest, RefusesToMoveALevelOntoAnother) {
    EditThree([this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1});
        Confirm("20", "3");
        screen.User.Click(CONTROL_EDIT);
        EXPECT_EQ(Messages(), Texts{notModified});
        EXPECT_EQ(Script().Messages()[0].Type, MB_OK | MB_ICONERROR);
        const Texts rows = {"20.00|No|0.0|Continous", "10.00|No|0.0|Continous",
                            "5.00|No|0.0|Continous"};
        EXPECT_EQ(screen.Rows(), rows);
        EXPECT_TRUE(screen.IsThePlace(1));
        Confirm("15");
        screen.User.Click(CONTROL_EDIT);
        const Texts levels = {"20.00", "15.00", "5.00"};
        EXPECT_EQ(screen.Column(0), levels);
    });
}

TEST_P(ContourEditorTest, EditsSeveralDefinitionsAndKeepsTheirLevels) {
    EditThree([this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1, 2});
        InDialog([](Screen& properties) {
            EXPECT_EQ(properties.Text(CONTROL_LEVEL), "10.00");
            EXPECT_FALSE(properties.IsEnabled(CONTROL_LEVEL));
            properties.User.Type(CONTROL_LINE_WIDTH, "2");
            properties.User.Choose(CONTROL_LINE_STYLE, 1);
            properties.User.Click(CONTROL_SHOW_LABELS);
            properties.User.Click(CONTROL_COLOR);
            properties.User.Click(IDOK);
        });
        Script().AnswerColor(0x112233);
        screen.User.Click(CONTROL_EDIT);
        const Texts rows = {"20.00|No|0.0|Continous", "10.00|Yes|2.0|Dashed",
                            "5.00|Yes|2.0|Dashed"};
        EXPECT_EQ(screen.Rows(), rows);
        EXPECT_EQ(screen.Swatch(1), 0x112233U);
        EXPECT_EQ(screen.Swatch(2), 0x112233U);
        EXPECT_TRUE(screen.IsThePlace(1));
        InDialog([](Screen& properties) { EXPECT_TRUE(properties.IsEnabled(CONTROL_LEVEL)); });
        screen.User.Click(CONTROL_ADD);
    });
}

TEST_P(ContourEditorTest, RoundsALevelToTheTwoDecimalsOfItsText) {
    Edit({At(10.125)}, [this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {0});
        Confirm("");
        screen.User.Click(CONTROL_EDIT);
        screen.User.Click(IDOK);
    });
    EXPECT_EQ(LevelsIn(m_Path), std::vector{10.12});  // halves to even
}

TEST_P(ContourEditorTest, RemovesTheSelectedRowsWithoutAsking) {
    const auto colored = [](double level, unsigned long color) {
        return Definition{0.0F, 0, level, color, false};
    };
    Edit({colored(5, 1), colored(10, 2), colored(20, 3)}, [this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {0, 2});
        screen.User.Click(CONTROL_REMOVE);
        EXPECT_EQ(Messages(), Texts());
        EXPECT_EQ(screen.Column(0), Texts{"10.00"});
        EXPECT_EQ(screen.Swatch(0), 2U) << "the rows that stay keep their swatches";
        EXPECT_TRUE(screen.IsThePlace(0));
        screen.User.Click(IDOK);
    });
    EXPECT_EQ(LevelsIn(m_Path), std::vector{10.0});
}

TEST_P(ContourEditorTest, SelectsWhatCameIntoTheRemovedRowsPlace) {
    EditThree([](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1});
        screen.User.Click(CONTROL_REMOVE);
        EXPECT_TRUE(screen.IsThePlace(1));
        screen.User.Click(CONTROL_REMOVE);
        EXPECT_EQ(screen.Column(0), Texts{"20.00"});
        EXPECT_EQ(screen.SelectedRows(), std::vector<int>());
        EXPECT_FALSE(screen.IsEnabled(CONTROL_REMOVE));
        screen.User.Press(VK_DELETE);
        EXPECT_EQ(screen.Column(0), Texts{"20.00"}) << "nothing was selected";
        EXPECT_EQ(screen.SelectedRows(), std::vector<int>());
    });
}

TEST_P(ContourEditorTest, ObeysTheKeysOfTheList) {
    EditThree([this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1});
        screen.User.Press(VK_DELETE);
        Confirm("7");
        screen.User.Press(VK_INSERT);
        screen.User.Press(VK_F2);
        EXPECT_TRUE(screen.User.Type(CONTROL_CONTOUR_LIST, "8"));
        Confirm("9");
        screen.User.Press(VK_RETURN);
        const Texts levels = {"20.00", "9.00", "5.00"};
        EXPECT_EQ(screen.Column(0), levels);
        EXPECT_TRUE(screen.User.Press(VK_ESCAPE));
        EXPECT_FALSE(screen.User.Press(VK_ESCAPE)) << "the editor is closed";
    });
    EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0, 20.0}));
}

TEST_P(ContourEditorTest, EntryPointTellsWhetherItWasClosedWithOk) {
    const std::string path = m_Folder.File("sheet.cdf");
    InDialog([](Screen& screen) {
        EXPECT_EQ(screen.Title(), "Contours - sheet");
        screen.User.Click(IDOK);
    });
    EXPECT_TRUE(DLG::EditContourList(path.c_str()));
    InDialog([](Screen& screen) { screen.User.CloseFrame(); });
    EXPECT_FALSE(DLG::EditContourList(path.c_str()));
}

MARLIN_ON_EVERY_STAGE(ContourEditorTest);

}  // namespace
