// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/dialog_template.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

using PLATFORM::ControlTemplate;
using PLATFORM::DialogTemplate;

// Every template of the library.
class DialogTemplates : public testing::TestWithParam<unsigned int> {
protected:
    void SetUp() override { ASSERT_NE(m_Template, nullptr); }
    const DialogTemplate* const m_Template = PLATFORM::FindDialogTemplate(GetParam());
};

bool IsRightOrBelow(const ControlTemplate& a, const ControlTemplate& b) {
    return a.X >= b.X + b.Width || a.Y >= b.Y + b.Height;
}

// Columns from the left, each from the top; labels and controls of a row stand side by side.
TEST_P(DialogTemplates, LieWholeAndApartInTheirDialogInReadingOrder) {
    const auto controls = m_Template->Controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        EXPECT_GE(std::min(controls[i].X, controls[i].Y), 0);
        EXPECT_LE(controls[i].X + controls[i].Width, m_Template->Width);
        EXPECT_LE(controls[i].Y + controls[i].Height, m_Template->Height);
        EXPECT_TRUE(i == 0 || IsRightOrBelow(controls[i], controls[i - 1])) << controls[i].Id;
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_TRUE(IsRightOrBelow(controls[i], controls[j]) ||
                        IsRightOrBelow(controls[j], controls[i]))
                << controls[i].Id << ' ' << controls[j].Id;
        }
    }
}

TEST_P(DialogTemplates, GiveEachMnemonicAndNumberOnce) {
    std::set<char> mnemonics;
    std::set<int> ids;
    for (const ControlTemplate& control : m_Template->Controls) {
        const std::size_t mark = control.Text.find('&');
        if (mark != std::string_view::npos) {
            const int letter = std::tolower(static_cast<unsigned char>(control.Text.at(mark + 1)));
            EXPECT_TRUE(mnemonics.insert(static_cast<char>(letter)).second) << control.Text;
        }
        EXPECT_TRUE(control.Id == -1 || ids.insert(control.Id).second) << control.Id;
    }
    EXPECT_TRUE(ids.contains(1) && ids.contains(2));
    EXPECT_GE(mnemonics.size(), 3U);
}

INSTANTIATE_TEST_SUITE_P(Of, DialogTemplates, testing::Values(9010U, 9011U, 9012U));

}  // namespace
