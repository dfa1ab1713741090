// SPDX-License-Identifier: MIT
#include "editor_test.h"
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/platform/windowing/c_file_dialog.h>

namespace {

class ContourGenerationTest : public EditorTest {};

constexpr const char* failed = "Error: Failed to generate contours.";

TEST_P(ContourGenerationTest, ReplacesTheListByTheLevelsOfARange) {
    EditThree([this](Screen& screen) {
        screen.User.SelectRows(CONTROL_CONTOUR_LIST, {1});
        ConfirmRange("0", "10", "2.5");
        screen.User.Click(CONTROL_RANGE);
        const Texts rows = {"10.00|No|0.0|Continous", "7.50|No|0.0|Continous",
                            "5.00|No|0.0|Continous", "2.50|No|0.0|Continous",
                            "0.00|No|0.0|Continous"};
        EXPECT_EQ(screen.Rows(), rows);
        EXPECT_EQ(screen.SelectedRows(), std::vector<int>());
        EXPECT_FALSE(screen.IsEnabled(CONTROL_EDIT));
    });
    EXPECT_EQ(Messages(), Texts());
}

TEST_P(ContourGenerationTest, LeavesTheListEmptyForARangeThatIsNone) {
    const char* ranges[][3] = {{"10", "0", "1"}, {"5", "5", "1"}, {"0", "10", "0"}};
    for (const auto& range : ranges) {
        const size_t before = Messages().size();
        EditThree([&](Screen& screen) {
            ConfirmRange(range[0], range[1], range[2]);
            screen.User.Click(CONTROL_RANGE);
            EXPECT_EQ(screen.Rows(), Texts());
        });
        ASSERT_EQ(Messages().size(), before + 1);
        EXPECT_EQ(Messages()[before], failed);
        EXPECT_EQ(Script().Messages()[before].Type, MB_OK | MB_ICONERROR);
    }
}

TEST_P(ContourGenerationTest, BeginsEachTimeWithZerosAndCanBeCancelled) {
    EditThree([this](Screen& screen) {
        const Texts before = screen.Rows();
        for (int time = 0; time < 2; ++time) {
            InDialog([](Screen& range) {
                EXPECT_EQ(range.Title(), "Generate Contours");
                for (const int id :
                     {CONTROL_HIGHEST_LEVEL, CONTROL_LOWEST_LEVEL, CONTROL_INTERVAL}) {
                    EXPECT_EQ(range.Text(id), "0");
                    range.User.Type(id, "5");
                }
                range.User.Click(IDCANCEL);
            });
            screen.User.Click(CONTROL_RANGE);
        }
        EXPECT_EQ(screen.Rows(), before);
    });
}

TEST_P(ContourGenerationTest, KeepsWhatWasTypedInItsOwnField) {
    CContourGenerationDlg dialog;
    ConfirmRange("1.5", "-2e3", " 7 ");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.LowestLevel(), 1.5);
    EXPECT_EQ(dialog.HighestLevel(), -2000.0);
    EXPECT_EQ(dialog.Interval(), 7.0);
}

TEST_P(ContourGenerationTest, RefusesWordsAndStaysOpen) {
    CContourGenerationDlg dialog;
    InDialog([this](Screen& screen) {
        for (const char* text : {"deep", "", "1,5", "3 m", "1e999", "inf", "nan", "--1"}) {
            const size_t before = Messages().size();
            screen.User.Type(CONTROL_LOWEST_LEVEL, text);
            screen.User.Click(IDOK);
            EXPECT_EQ(Messages().size(), before + 1) << text;
            EXPECT_TRUE(Messages().back().starts_with("Generate Contours: Lowers level: ")) << text;
            EXPECT_EQ(Messages().back().ends_with("use a point"), std::string(text) == "1,5");
            EXPECT_TRUE(screen.HasFocus(CONTROL_LOWEST_LEVEL));
        }
        screen.User.Type(CONTROL_LOWEST_LEVEL, "+3");
        EXPECT_TRUE(screen.User.Click(IDOK)) << "the dialog is still open";
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.LowestLevel(), 3.0);
}

TEST_P(ContourGenerationTest, ReplacesTheListByTheEntriesOfAColorTable) {
    const std::string table = m_Folder.Write(
        "depth.col", "[ColorTable]\nBelow=0\nEntry(0)=1,255,0,0\nEntry(1)=2.5,0,0,255\n");
    EditThree([&](Screen& screen) {
        Script().AnswerFile(m_Folder.File("depth").c_str());
        screen.User.Click(CONTROL_COLOR_TABLE);
        const Texts rows = {"2.50|No|0.0|Continous", "1.00|No|0.0|Continous"};
        EXPECT_EQ(screen.Rows(), rows);
        EXPECT_EQ(screen.Swatch(0), 0xFF0000U);
        EXPECT_EQ(screen.Swatch(1), 0x0000FFU);
        EXPECT_EQ(screen.SelectedRows(), std::vector<int>());
    });
    ASSERT_EQ(Script().Files().size(), 1U);
    const PLATFORM::FileRequest& request = Script().Files()[0];
    EXPECT_TRUE(request.Open);
    EXPECT_EQ(std::string(request.DefaultExtension), "col");
    EXPECT_EQ(request.Filter, std::string("Color Table Files (*.col)\0*.col\0\0", 33));
    EXPECT_EQ(std::string(request.InitialFolder), m_Data.File("contours"));
    EXPECT_EQ(request.Flags, OFN_HIDEREADONLY);
}

TEST_P(ContourGenerationTest, LeavesTheListEmptyForAFileThatIsNoColorTable) {
    for (const std::string& path :
         {m_Folder.File("none.col"), m_Folder.Write("empty.col", "[ColorTable]\nBelow=7\n")}) {
        const size_t before = Messages().size();
        EditThree([&](Screen& screen) {
            Script().AnswerFile(path.c_str());
            screen.User.Click(CONTROL_COLOR_TABLE);
            EXPECT_EQ(screen.Rows(), Texts());
        });
        ASSERT_EQ(Messages().size(), before + 1) << path;
        EXPECT_EQ(Messages()[before], failed);
    }
}

TEST_P(ContourGenerationTest, KeepsTheListWhenNoColorTableIsChosen) {
    EditThree([&](Screen& screen) {
        const Texts before = screen.Rows();
        Script().AnswerFile({});
        screen.User.Click(CONTROL_COLOR_TABLE);
        EXPECT_EQ(screen.Rows(), before);
    });
}

MARLIN_ON_EVERY_STAGE(ContourGenerationTest);

}  // namespace
