// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/dialog_template.h>

#include <cctype>
#include <set>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace {

using PLATFORM::CONTROL;
using PLATFORM::ControlTemplate;
using PLATFORM::DialogTemplate;

const DialogTemplate& Template(unsigned int id) {
    const DialogTemplate* const found = PLATFORM::FindDialogTemplate(id);
    EXPECT_NE(found, nullptr) << id;
    return *found;
}

bool Overlap(const ControlTemplate& a, const ControlTemplate& b) {
    return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height &&
           b.Y < a.Y + a.Height;
}

// Every template of the library.
class DialogTemplates : public testing::TestWithParam<unsigned int> {
protected:
    const DialogTemplate& m_Template = Template(GetParam());
};

TEST(DialogTemplate, HasTheLibrarysThreeDialogsInTheirSizes) {
    struct Case {
        unsigned int Id;
        const char* Caption;
        int Width, Height;
    };
    const Case cases[] = {{9010, "Generate Contours", 148, 105},
                          {9011, "Contours", 237, 174},
                          {9012, "Contour Properties", 178, 124}};
    for (const Case& c : cases) {
        const DialogTemplate& form = Template(c.Id);
        EXPECT_EQ(form.Caption, c.Caption);
        EXPECT_EQ(form.Width, c.Width);
        EXPECT_EQ(form.Height, c.Height);
        EXPECT_EQ(form.FontName, "MS Shell Dlg");
        EXPECT_EQ(form.FontSize, 8);
    }
    EXPECT_EQ(PLATFORM::FindDialogTemplate(9013), nullptr);
}

TEST(DialogTemplate, PutsTheEditorsListAndButtonsInTheirPlaces) {
    for (const ControlTemplate& control : Template(9011).Controls) {
        if (control.Kind == CONTROL::REPORT_LIST) {
            EXPECT_EQ(std::tuple(control.Id, control.X, control.Y, control.Width, control.Height),
                      std::tuple(9029, 6, 7, 153, 161));
        } else {
            EXPECT_EQ(control.X, 173);
        }
    }
}

TEST_P(DialogTemplates, LieWholeAndApartInTheirDialog) {
    const auto controls = m_Template.Controls;
    for (size_t i = 0; i < controls.size(); ++i) {
        EXPECT_GE(std::min(controls[i].X, controls[i].Y), 0);
        EXPECT_LE(controls[i].X + controls[i].Width, m_Template.Width);
        EXPECT_LE(controls[i].Y + controls[i].Height, m_Template.Height);
        for (size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(Overlap(controls[i], controls[j])) << controls[i].Id << controls[j].Id;
        }
    }
}

TEST_P(DialogTemplates, GiveEachMnemonicAndNumberOnce) {
    std::set<char> mnemonics;
    std::set<int> ids;
    for (const ControlTemplate& control : m_Template.Controls) {
        const size_t mark = control.Text.find('&');
        if (mark != std::string_view::npos) {
            const int letter = std::tolower(static_cast<unsigned char>(control.Text.at(mark + 1)));
            EXPECT_TRUE(mnemonics.insert(static_cast<char>(letter)).second) << control.Text;
        }
        EXPECT_TRUE(control.Id == -1 || ids.insert(control.Id).second) << control.Id;
    }
    EXPECT_TRUE(ids.contains(1) && ids.contains(2));
    EXPECT_GE(mnemonics.size(), 3U);
}

// Columns from the left, each from the top; labels and controls of a row stand side by side.
TEST_P(DialogTemplates, AreInReadingOrder) {
    const ControlTemplate* before = nullptr;
    for (const ControlTemplate& control : m_Template.Controls) {
        if (before) {
            const bool isRightOf = control.X >= before->X + before->Width;
            const bool isBelow = control.Y >= before->Y + before->Height;
            EXPECT_TRUE(isRightOf || isBelow) << before->Id << " before " << control.Id;
        }
        before = &control;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, DialogTemplates, testing::Values(9010U, 9011U, 9012U));

}  // namespace
