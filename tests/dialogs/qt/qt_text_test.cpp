// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/qt_text.h>

#include <gtest/gtest.h>

namespace {

using PLATFORM::detail::QtText;
using PLATFORM::detail::TextOf;

TEST(QtText, GivesTheBytesBackUntilTheTextIsEdited) {
    const struct {
        const char* Before;
        const char* Shown;
        const char* Edited;  // with the letter o with diaeresis at its end
    } cases[] = {
        {"", "", "\xC3\xB6"},
        {"caf\xE9", "caf\xC3\xA9", "caf\xE9\xF6"},
        {"caf\xC3\xA9", "caf\xC3\xA9", "caf\xC3\xA9\xC3\xB6"},
        {"\xC3\xA9\xE9", "\xC3\x83\xC2\xA9\xC3\xA9", "\xC3\xA9\xE9\xF6"},
        {"\xCE\xA9", "\xCE\xA9", "\xCE\xA9\xC3\xB6"},
    };
    for (const auto& [before, shown, edited] : cases) {
        EXPECT_EQ(QtText(before).toStdString(), shown);
        EXPECT_EQ(TextOf(QtText(before), before), before);
        EXPECT_EQ(TextOf(QtText(before) + QChar(0xF6), before), edited);
    }
    // Omega is not in Windows-1252; of the second text its bytes would be read as one letter.
    EXPECT_EQ(TextOf(QString(QChar(0x3A9)), "\xE9"), "\xCE\xA9");
    EXPECT_EQ(TextOf(QString("\u00C3\u00A9"), "\xE9"), "\xC3\x83\xC2\xA9");
}

}  // namespace
