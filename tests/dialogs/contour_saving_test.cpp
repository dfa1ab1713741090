// SPDX-License-Identifier: MIT
#include "editor_test.h"
#include <marlin/contours/dialogs/edit_contour_list.h>
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

/// An editor that asks before something is lost, on a file with the levels 5, 10 and 20.
class GuardedEditorTest : public EditorTest {
protected:
    GuardedEditorTest() {
        EditThree([](Screen&) {});
        m_Editor.FileName(m_Path.c_str());
        m_Editor.AskBeforeLoss(true);
    }
    /// Removes the first row, and acts.
    int RunChanged(const Act& act) {
        InDialog([&act](Screen& screen) {
            EXPECT_EQ(screen.Title(), "Contours - sheet");
            screen.User.SelectRows(CONTROL_CONTOUR_LIST, {0});
            screen.User.Press(VK_DELETE);
            EXPECT_EQ(screen.Title(), "Contours - sheet *");
            act(screen);
        });
        return m_Editor.DoModal();
    }

    CContourEditor m_Editor;
};

TEST_P(GuardedEditorTest, ClosingAsksWhetherAChangedListIsToBeSaved) {
    const int result = RunChanged([this](Screen& screen) {
        Script().AnswerMessage(IDCANCEL);
        screen.User.Press(VK_ESCAPE);
        EXPECT_EQ(Messages(), Texts{"Contours - sheet *: The list was changed. Save it?"});
        screen.User.Press('Z', {false, true});
        EXPECT_EQ(screen.Title(), "Contours - sheet") << "as it was";
        screen.User.Press('Z', {true, true});
        Script().AnswerMessage(IDYES);
        screen.User.CloseFrame();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(m_Editor.Result().Outcome, ContourEditResult::SAVED);
    EXPECT_EQ(std::string(m_Editor.Result().Path), m_Path);
    EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0}));
}

TEST_P(GuardedEditorTest, CancelAndNoDiscardWithoutAQuestionMore) {
    EXPECT_EQ(RunChanged([](Screen& screen) { screen.User.Click(IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(Messages(), Texts());
    EXPECT_EQ(m_Editor.Result().Outcome, ContourEditResult::CANCELLED);
    EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0, 20.0}));
}

TEST_P(GuardedEditorTest, AFileThatAnotherProgramChangedIsNotReplacedUnasked) {
    const std::string other = TemporaryFolder::Read(m_Path) + "[Other]\r\nk = 1\r\n";
    const int result = RunChanged([&](Screen& screen) {
        m_Folder.Write("sheet.cdf", other);
        Script().AnswerMessage(IDNO);
        screen.User.Click(IDOK);
        EXPECT_EQ(TemporaryFolder::Read(m_Path), other);
        Script().AnswerMessage(IDYES);
        EXPECT_TRUE(screen.User.Click(IDOK)) << "the editor is still open";
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Messages().size(), 2U);
    EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0}));
}

TEST_P(GuardedEditorTest, AFileThatWasNotOpenedIsNotReplacedUnasked) {
    std::filesystem::rename(m_Path, m_Folder.File("sheet.txt"));
    m_Folder.Write("sheet.cdf", "mine");
    m_Editor.FileName(m_Folder.File("sheet.txt").c_str());
    RunChanged([this](Screen& screen) {
        Script().AnswerMessage(IDNO);
        screen.User.Click(IDOK);
        screen.User.Click(IDCANCEL);
    });
    EXPECT_EQ(TemporaryFolder::Read(m_Path), "mine");
}

TEST_P(GuardedEditorTest, TheHostLearnsWhyAListWasNotSaved) {
    ContourEditResult result;
    InDialog([](Screen& screen) {
        screen.User.Press('A', {false, true});
        screen.User.Click(CONTROL_REMOVE);
        screen.User.Click(IDOK);
    });
    EXPECT_TRUE(DLG::EditContourList(m_Path.c_str(), result));
    EXPECT_EQ(result.Outcome, ContourEditResult::NOT_SAVED);
    EXPECT_EQ(result.Cause, "an empty list makes no file");
    EXPECT_EQ(LevelsIn(m_Path), (std::vector{5.0, 10.0, 20.0})) << "the old file is whole";
}

MARLIN_ON_EVERY_STAGE(ContourSavingTest);
MARLIN_ON_EVERY_STAGE(GuardedEditorTest);

}  // namespace
