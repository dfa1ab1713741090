// SPDX-License-Identifier: MIT
#include "editor_test.h"
#include <marlin/platform/windowing/c_file_dialog.h>

#include <filesystem>

namespace {

class ContourSavingTest : public EditorTest {};

TEST_P(ContourSavingTest, ReachesTheDiskWithOkAndNotBefore) {
    const int result = EditThree([this](Screen& screen) {
        Confirm("7");
        screen.User.Click(CONTROL_ADD);
        EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0, 20.0}));
        screen.User.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 7.0, 10.0, 20.0}));
}

TEST_P(ContourSavingTest, IsLeftOutWhenTheEditorIsCancelledOrClosedByItsFrame) {
    for (const bool byFrame : {false, true}) {
        const int result = EditThree([this, byFrame](Screen& screen) {
            Confirm("7");
            screen.User.Click(CONTROL_ADD);
            EXPECT_TRUE(byFrame ? screen.User.CloseFrame() : screen.User.Click(IDCANCEL));
        });
        EXPECT_EQ(result, IDCANCEL);
        EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0, 20.0}));
    }
}

TEST_P(ContourSavingTest, GivesTheFileTheExtensionCdf) {
    ContourDefinitionList list;
    list.Add(At(3));
    const std::string path = m_Folder.File("deep.water.txt");
    ASSERT_TRUE(list.Save(path.c_str()));
    Run(path, [](Screen& screen) {
        EXPECT_EQ(screen.Title(), "Contours - deep.water");
        screen.User.Click(IDOK);
    });
    EXPECT_EQ(LevelsIn(m_Folder.File("deep.water.cdf")), std::vector{3.0});
}

TEST_P(ContourSavingTest, IsNotReportedWhenItFails) {
    const std::string path = m_Folder.File("no folder/sheet.cdf");
    CContourEditor editor;
    editor.FileName(path.c_str());
    InDialog([this](Screen& screen) {
        Confirm("7");
        screen.User.Click(CONTROL_ADD);
        screen.User.Click(IDOK);
    });
    EXPECT_EQ(editor.DoModal(), IDOK);
    EXPECT_EQ(Messages(), Texts());
    EXPECT_TRUE(editor.HasSaveFailed()) << "the host can ask";
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_P(ContourSavingTest, WithoutANameAsksAndStaysOpenOnNo) {
    const int result = Run("", [this](Screen& screen) {
        Script().AnswerMessage(IDNO);
        screen.User.Click(IDOK);
        ASSERT_EQ(Script().Messages().size(), 1U);
        EXPECT_EQ(std::string(Script().Messages()[0].Text), "Save changes?");
        EXPECT_EQ(Script().Messages()[0].Type, MB_YESNO | MB_ICONQUESTION);
        EXPECT_TRUE(Script().Files().empty());
        EXPECT_TRUE(screen.User.Click(IDCANCEL)) << "the editor is still open";
    });
    EXPECT_EQ(result, IDCANCEL);
}

TEST_P(ContourSavingTest, WithoutANameSavesUnderTheChosenOne) {
    const int result = Run("", [this](Screen& screen) {
        Confirm("7");
        screen.User.Click(CONTROL_ADD);
        Script().AnswerMessage(IDYES);
        Script().AnswerFile(m_Folder.File("new").c_str());
        screen.User.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(LevelsIn(m_Folder.File("new.cdf")), std::vector{7.0});
    ASSERT_EQ(Script().Files().size(), 1U);
    const PLATFORM::FileRequest& request = Script().Files()[0];
    EXPECT_TRUE(request.Open);
    EXPECT_EQ(std::string(request.DefaultExtension), "cdf");
    const std::string filter("Contour Definition Files (*.cdf)\0*.cdf\0\0", 40);
    EXPECT_EQ(request.Filter, filter);
    EXPECT_EQ(std::string(request.InitialFolder), m_Data.File("contours"));
    EXPECT_EQ(request.Flags, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
}

TEST_P(ContourSavingTest, WithoutANameClosesAlsoWhenNoFileIsChosen) {
    const int result = Run("", [this](Screen& screen) {
        Script().AnswerMessage(IDYES);
        Script().AnswerFile({});
        screen.User.Click(IDOK);
        EXPECT_FALSE(screen.User.Click(IDOK)) << "the editor is closed";
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(m_Folder.NumFiles(), 0);
}

MARLIN_ON_EVERY_STAGE(ContourSavingTest);

}  // namespace
