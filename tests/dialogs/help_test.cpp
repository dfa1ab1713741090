// SPDX-License-Identifier: MIT
#include "dialog_test.h"
#include <marlin/base/help_provider.h>
#include <marlin/contours/dialogs/contour_editor.h>
#include <marlin/contours/dialogs/contour_generation_dlg.h>
#include <marlin/contours/dialogs/edit_contour_dlg.h>

namespace {

/// A dialog of the host that counts the requests for help that come to it.
class Helper : public CDialog {
public:
    Helper() : CDialog(DIALOG_CONTOURS) {}

    int Requests = 0;

protected:
    BOOL OnHelpInfo(HELPINFO*) {
        ++Requests;
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Helper, CDialog)
ON_WM_HELPINFO()
END_MESSAGE_MAP()

class HelpTest : public DialogTest {
protected:
    ~HelpTest() override { HelpProvider::GetInstance().SetHandler({}); }

    /// Presses F1 in a dialog on top of another one; how often that one was asked.
    template <typename Dialog>
    int RequestsBelow() {
        Helper below;
        InDialog([this, &below](Screen&) {
            Dialog dialog(&below);
            InDialog([](Screen& screen) { EXPECT_TRUE(screen.User.Press(VK_F1)); });
            dialog.DoModal();
        });
        below.DoModal();
        return below.Requests;
    }
};

TEST_P(HelpTest, ComesFromTheProviderInAllThreeDialogs) {
    Texts helped;
    HelpProvider::GetInstance().SetHandler([&helped](CWnd* window) {
        CString title;
        window->GetWindowText(title);
        helped.emplace_back(title);
        return true;
    });
    EXPECT_EQ(RequestsBelow<CContourEditor>(), 0);
    EXPECT_EQ(RequestsBelow<CEditContourDlg>(), 0);
    EXPECT_EQ(RequestsBelow<CContourGenerationDlg>(), 0);
    const Texts titles = {"Contours", "Contour Properties", "Generate Contours"};
    EXPECT_EQ(helped, titles);
}

TEST_P(HelpTest, IsAskedOfTheWindowBelowWhereTheProviderHasNone) {
    HelpProvider::GetInstance().SetHandler([](CWnd*) { return false; });
    EXPECT_EQ(RequestsBelow<CContourEditor>(), 1);
    EXPECT_EQ(RequestsBelow<CEditContourDlg>(), 1);
    EXPECT_EQ(RequestsBelow<CContourGenerationDlg>(), 1);
}

MARLIN_ON_EVERY_STAGE(HelpTest);

}  // namespace
