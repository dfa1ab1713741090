// SPDX-License-Identifier: MIT
#include "dialog_test.h"
#include <marlin/gdi/color_button.h>
#include <marlin/gdi/font_combo.h>
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/windowing/c_color_dialog.h>
#include <marlin/platform/windowing/c_data_exchange.h>
#include <marlin/platform/windowing/c_dialog.h>

#include <algorithm>
#include <array>

namespace {

using PLATFORM::CONTROL;

constexpr int buttonId = 100;
constexpr int fontsId = 101;
constexpr int sortedFontsId = 102;
constexpr int doubleId = 103;
constexpr int floatId = 104;

constexpr std::array<PLATFORM::ControlTemplate, 6> controls = {{
    {buttonId, CONTROL::OWNER_BUTTON, "Pick", 7, 7, 80, 16},
    {fontsId, CONTROL::DROP_DOWN_LIST, "", 7, 27, 80, 14, "Fonts"},
    {sortedFontsId, CONTROL::DROP_DOWN_LIST, "", 7, 47, 80, 14, "Sorted", {}, false, true},
    {doubleId, CONTROL::EDIT, "", 7, 67, 80, 14, "Double"},
    {floatId, CONTROL::EDIT, "", 7, 87, 80, 14, "Float"},
    {IDOK, CONTROL::DEFAULT_BUTTON, "OK", 7, 107, 50, 14},
}};
constexpr PLATFORM::DialogTemplate form = {1, "Host", 94, 128, "MS Shell Dlg", 8, controls};

/// A host's own dialog with the library's controls in it.
class HostDialog : public CDialog {
public:
    HostDialog() { InitModalIndirect(&form); }

    ColorButton Button;
    FontCombo Fonts;
    FontCombo SortedFonts;
    double Double = 0.0;
    float Float = 0.0F;
    int EarlyResult = 0;

protected:
    BOOL OnInitDialog() override {
        if (EarlyResult != 0) {
            EndDialog(EarlyResult);
        }
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* exchange) override {
        DDX_Control(exchange, buttonId, Button);
        DDX_Control(exchange, fontsId, Fonts);
        DDX_Control(exchange, sortedFontsId, SortedFonts);
        DDX_Text(exchange, doubleId, Double);
        DDX_Text(exchange, floatId, Float);
    }
};

class ControlsTest : public DialogTest {
protected:
    void Run(const Act& act) {
        InDialog(act);
        m_Dialog.DoModal();
    }
    [[nodiscard]] COLORREF Face(int x, int y) {
        return m_Stage->FacePixel(m_Dialog.Button.GetSafeHwnd(), x, y);
    }
    /// How many pixels inside the frame have another color than the face's.
    [[nodiscard]] int Inked(COLORREF face, int left, int right) {
        const SIZE size = m_Stage->FaceSize(m_Dialog.Button.GetSafeHwnd());
        int count = 0;
        for (int y = 1; y < size.cy - 1; ++y) {
            for (int x = left; x < right; ++x) {
                count += Face(x, y) != face ? 1 : 0;
            }
        }
        return count;
    }
    [[nodiscard]] static Texts Items(const CComboBox& combo) {
        Texts items;
        for (int item = 0; item < combo.GetCount(); ++item) {
            CString text;
            combo.GetLBText(item, text);
            items.emplace_back(text);
        }
        return items;
    }

    HostDialog m_Dialog;
};

TEST_P(ControlsTest, ColorButtonShowsItsColorFramedAndCaptionedInTheInverse) {
    EXPECT_EQ(m_Dialog.Button.GetColor(), 0U);
    m_Dialog.Button.SetColor(0xFFFFFF);
    Run([this](Screen&) {
        const SIZE size = m_Stage->FaceSize(m_Dialog.Button.GetSafeHwnd());
        ASSERT_GT(size.cx, 40);
        for (const int x : {0, size.cx / 2, size.cx - 1}) {
            EXPECT_EQ(Face(x, 0), 0U);
            EXPECT_EQ(Face(x, size.cy - 1), 0U);
        }
        EXPECT_EQ(Face(0, size.cy / 2), 0U);
        EXPECT_EQ(Face(1, 1), 0xFFFFFFU);
        const int width = size.cx - 2;
        EXPECT_GT(Inked(0xFFFFFF, 1 + width / 3, 1 + width * 2 / 3), 0)
            << "the caption in the middle";
        EXPECT_EQ(Inked(0xFFFFFF, 1, 1 + width / 4), 0);
        EXPECT_EQ(Inked(0xFFFFFF, 1 + width * 3 / 4, 1 + width), 0);
    });
}

TEST_P(ControlsTest, ColorButtonInvertsEachComponent) {
    m_Dialog.Button.SetColor(0x8040FF);
    Run([this](Screen&) {
        EXPECT_EQ(Face(0, 0), 0x7FBF00U);
        EXPECT_EQ(Face(1, 1), 0x8040FFU);
    });
}

TEST_P(ControlsTest, ColorButtonKeepsItsFaceUntilItIsDrawnAnew) {
    m_Dialog.Button.SetColor(0x0000FF);
    Run([this](Screen&) {
        m_Dialog.Button.SetColor(0x00FF00);
        EXPECT_EQ(Face(1, 1), 0x0000FFU);
        m_Dialog.Button.SetFocus();
        EXPECT_EQ(Face(1, 1), 0x0000FFU) << "the focus alone draws nothing";
        m_Dialog.Button.InvalidateRect(nullptr);
        EXPECT_EQ(Face(1, 1), 0x00FF00U);
    });
}

TEST_P(ControlsTest, ColorButtonLetsTheUserChooseOnAClick) {
    m_Dialog.Button.SetColor(0x123456);
    Run([this](Screen& screen) {
        Script().AnswerColor({});
        EXPECT_TRUE(screen.User.Click(buttonId));
        EXPECT_EQ(m_Dialog.Button.GetColor(), 0x123456U);
        ASSERT_EQ(Script().Colors().size(), 1U);
        EXPECT_EQ(Script().Colors()[0].Color, 0x123456U);
        EXPECT_EQ(Script().Colors()[0].Flags, CC_FULLOPEN);
        Script().AnswerColor(0x00FF00);
        screen.User.Click(buttonId);
        EXPECT_EQ(m_Dialog.Button.GetColor(), 0x00FF00U);
        EXPECT_EQ(Face(1, 1), 0x00FF00U);
        Script().AnswerColor({});
        m_Dialog.Button.ForceColorChange();
        EXPECT_EQ(m_Dialog.Button.GetColor(), 0x00FF00U);
        Script().AnswerColor(0x0000FF);
        m_Dialog.Button.ForceColorChange();
        EXPECT_EQ(m_Dialog.Button.GetColor(), 0x0000FFU);
    });
}

TEST_P(ControlsTest, FontComboListsEveryFaceAgainAtEachCall) {
    m_Dialog.Fonts.FillCombo();
    Run([this](Screen&) {
        EXPECT_EQ(m_Dialog.Fonts.GetCount(), 0) << "there was no window to fill";
        m_Dialog.Fonts.FillCombo();
        const Texts faces = Items(m_Dialog.Fonts);
        ASSERT_FALSE(faces.empty());
        const Texts families = PLATFORM::FontCatalog::Families();
        for (const std::string& face : faces) {
            EXPECT_EQ(std::ranges::count(families, face), 1) << face;
        }
        m_Dialog.Fonts.FillCombo();
        Texts twice = faces;
        twice.insert(twice.end(), faces.begin(), faces.end());
        EXPECT_EQ(Items(m_Dialog.Fonts), twice);
    });
}

TEST_P(ControlsTest, SortedComboKeepsItsItemsInOrder) {
    Run([this](Screen&) {
        for (const char* item : {"b", "C", "a"}) {
            m_Dialog.SortedFonts.AddString(item);
            m_Dialog.Fonts.AddString(item);
        }
        EXPECT_EQ(Items(m_Dialog.SortedFonts), (Texts{"a", "b", "C"}));
        EXPECT_EQ(Items(m_Dialog.Fonts), (Texts{"b", "C", "a"}));
        m_Dialog.SortedFonts.AddString("B");
        EXPECT_EQ(Items(m_Dialog.SortedFonts), (Texts{"a", "b", "B", "C"})) << "after its equal";
    });
}

TEST_P(ControlsTest, AnItemAddedBeforeTheChosenOneLeavesItChosen) {
    Run([this](Screen& screen) {
        for (const char* item : {"b", "c"}) {
            m_Dialog.SortedFonts.AddString(item);
        }
        EXPECT_TRUE(screen.User.Choose(sortedFontsId, 0));
        m_Dialog.SortedFonts.AddString("a");
        m_Dialog.SortedFonts.AddString("d");
        auto& sorted = *m_Stage->System().FindDropDown(m_Dialog.SortedFonts.GetSafeHwnd());
        EXPECT_EQ(std::string(sorted.ItemText(sorted.CurrentItem())), "b");
        sorted.SetCurrentItem(4);
        EXPECT_EQ(sorted.CurrentItem(), -1);
    });
}

TEST_P(ControlsTest, EditsShowTheDigitsThatSurviveARoundTrip) {
    const struct {
        double Double;
        float Float;
        const char* Texts[2];
    } rows[] = {{0.1 + 0.2, 0.1F, {"0.3", "0.1"}},
                {-1234567.125, 1234567.0F, {"-1234567.125", "1.23457e+06"}},
                {1e-9, 2.5e-7F, {"1e-09", "2.5e-07"}},
                {1e21, 65536.0F, {"1e+21", "65536"}}};
    for (const auto& row : rows) {
        m_Dialog.Double = row.Double;
        m_Dialog.Float = row.Float;
        Run([&row](Screen& screen) {
            EXPECT_EQ(screen.Text(doubleId), row.Texts[0]);
            EXPECT_EQ(screen.Text(floatId), row.Texts[1]);
        });
    }
}

TEST_P(ControlsTest, ADialogThatEndsWhileItOpensHasThatResult) {
    m_Dialog.EarlyResult = 7;
    EXPECT_EQ(m_Dialog.DoModal(), 7);
    m_Dialog.EarlyResult = 0;
    Run([](Screen& screen) { EXPECT_TRUE(screen.User.Click(IDOK)); });
}

MARLIN_ON_EVERY_STAGE(ControlsTest);

}  // namespace
