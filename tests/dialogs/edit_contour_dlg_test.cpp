// SPDX-License-Identifier: MIT
#include "dialog_test.h"
#include <marlin/contours/dialogs/edit_contour_dlg.h>

namespace {

class EditContourDlgTest : public DialogTest {
protected:
    /// Shows a definition and returns the dialog's afterwards.
    ContourDefinitionList::ContourDefInfo Show(const ContourDefinitionList::ContourDefInfo& shown,
                                               const Act& act) {
        m_Dialog.SetDefinition(shown);
        InDialog(act);
        m_Result = m_Dialog.DoModal();
        return m_Dialog.Definition();
    }

    static PLATFORM::DropDownList& LineStyles(const Screen& screen) {
        return *screen.System().FindDropDown(screen.Window(CONTROL_LINE_STYLE));
    }

    CEditContourDlg m_Dialog;
    int m_Result = 0;
};

TEST_P(EditContourDlgTest, ShowsTheDefinition) {
    Show({2.5F, 1, 10.125, 0x203040, true}, [this](Screen& screen) {
        EXPECT_EQ(screen.Title(), "Contour Properties");
        EXPECT_EQ(screen.Text(CONTROL_LEVEL), "10.12");
        EXPECT_TRUE(screen.IsEnabled(CONTROL_LEVEL));
        EXPECT_EQ(screen.Text(CONTROL_LINE_WIDTH), "2.5");
        EXPECT_EQ(LineStyles(screen).CurrentItem(), 1);
        EXPECT_TRUE(screen.System().IsChecked(screen.Window(CONTROL_SHOW_LABELS)));
        EXPECT_EQ(screen.Text(CONTROL_COLOR), "Click to Change");
        EXPECT_EQ(m_Stage->FacePixel(screen.Window(CONTROL_COLOR), 2, 2), 0x203040U);
    });
}

TEST_P(EditContourDlgTest, OffersTheThreeLineStyles) {
    Show({}, [](Screen& screen) {
        const char* const styles[] = {"CONTINUOUS", "DASHED", "DOTTED"};
        ASSERT_EQ(LineStyles(screen).ItemCount(), 3);
        for (int style = 0; style < 3; ++style) {
            EXPECT_EQ(std::string(LineStyles(screen).ItemText(style)), styles[style]);
        }
        EXPECT_FALSE(screen.System().IsChecked(screen.Window(CONTROL_SHOW_LABELS)));
    });
}

TEST_P(EditContourDlgTest, HoldsWhatWasEnteredOnceConfirmed) {
    Script().AnswerColor(0x0000FF);
    const auto held = Show({1.0F, 0, 1.0, 0xFF0000, true}, [](Screen& screen) {
        screen.User.Type(CONTROL_LEVEL, "-12.345");
        screen.User.Choose(CONTROL_LINE_STYLE, 2);
        screen.User.Type(CONTROL_LINE_WIDTH, "0.75");
        screen.User.Click(CONTROL_SHOW_LABELS);
        screen.User.Click(CONTROL_COLOR);
        screen.User.Press(VK_RETURN);  // confirms, though the color button has the focus
    });
    EXPECT_EQ(m_Result, IDOK);
    EXPECT_EQ(held.Level, -12.345);
    EXPECT_EQ(held.Color, 0x0000FFU);
    EXPECT_EQ(held.LineType, 2);
    EXPECT_EQ(held.LineWidth, 0.75F);
    EXPECT_FALSE(held.Annotate);
}

TEST_P(EditContourDlgTest, KeepsTheColorUntilItIsConfirmed) {
    Script().AnswerColor(0x0000FF);
    const auto held = Show({1.0F, 0, 1.0, 0xFF0000, true}, [this](Screen& screen) {
        screen.User.Click(CONTROL_COLOR);
        EXPECT_EQ(m_Stage->FacePixel(screen.Window(CONTROL_COLOR), 2, 2), 0x0000FFU);
        screen.User.Click(IDCANCEL);
    });
    EXPECT_EQ(held.Color, 0xFF0000U);
}

TEST_P(EditContourDlgTest, CountsTheWidthInWholeNumbersFrom0To10) {
    Show({2.5F, 0, 1.0, 0, false}, [](Screen& screen) {
        const auto spun = [&screen](int steps) {
            EXPECT_TRUE(screen.User.Spin(CONTROL_LINE_WIDTH_SPIN, steps));
            return screen.Text(CONTROL_LINE_WIDTH);
        };
        EXPECT_EQ(spun(1), "3");
        EXPECT_EQ(spun(-2), "1");
        EXPECT_EQ(spun(-5), "0");
        EXPECT_EQ(spun(99), "10");
        screen.User.Type(CONTROL_LINE_WIDTH, "wide");
        EXPECT_EQ(spun(1), "1");
    });
}

TEST_P(EditContourDlgTest, RefusesWordsInItsNumberFields) {
    const auto held = Show({}, [this](Screen& screen) {
        for (const int id : {CONTROL_LINE_WIDTH, CONTROL_LEVEL}) {
            screen.User.Type(id, "ten");
            screen.User.Click(IDOK);
            EXPECT_TRUE(screen.HasFocus(id));
            screen.User.Type(id, "10");
        }
        EXPECT_EQ(Script().Messages().size(), 2U);
        EXPECT_TRUE(screen.User.Click(IDOK)) << "the dialog is still open";
    });
    EXPECT_EQ(m_Result, IDOK);
    EXPECT_EQ(held.Level, 10.0);
    EXPECT_EQ(held.LineWidth, 10.0F);
}

MARLIN_ON_EVERY_STAGE(EditContourDlgTest);

}  // namespace
