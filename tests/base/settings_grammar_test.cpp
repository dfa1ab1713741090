// SPDX-License-Identifier: MIT
#include <marlin/base/files/settings_grammar.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

using MARLINSUITE::SettingsLine;

// The kinds and parts of all lines, each as "kind|name|value|comments|ignored".
std::string Parts(std::string_view text) {
    std::string parts;
    MARLINSUITE::ForEachSettingsLine(text, [&parts](const SettingsLine& line) {
        parts += parts.empty() ? "" : "\n";
        parts += "-PHKC"[line.Kind];
        for (const std::string_view part : {line.Name, line.Value, line.Comments, line.Ignored}) {
            parts.append("|").append(part);
        }
        return true;
    });
    return parts;
}

TEST(SettingsGrammar, TakesEveryKindOfLineApart) {
    static constexpr std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {" \t\r\n\n", "-||||\n-||||"},
        {"a = 1\n; note\n[open\n", "P||||\nP||||\nP||||"},
        {" [ A ] tail ; note \r\n", "H| A || note|tail"},
        {"[a;b]c]", "H|a;b|||c]"},
        {"[]", "H||||"},
        {"\xEF\xBB\xBF[A]\n\xEF\xBB\xBF[B]", "H|A|||\nK|\xEF\xBB\xBF[B]|||"},
        {"\xEF\xBB[A]\n", "P||||"},
        {"[A]\na = b = c ;d;e", "H|A|||\nK|a|b = c|d;e|"},
        {"[A]\nkey\nkey=\n=value\n=", "H|A|||\nK|key|||\nK|key|||\nK||value||\nK||||"},
        {"[A]\n ; note = 1\n;", "H|A|||\nC||| note = 1|\nC||||"},
        {"[A]\n[open = 1\n\n[B]", "H|A|||\nK|[open|1||\n-||||\nH|B|||"},
    };
    for (const auto& [text, parts] : cases) {
        EXPECT_EQ(Parts(text), parts) << text;
    }
}

TEST(SettingsGrammar, LinesAreNumberedAndCoverTheTextAfterAByteOrderMark) {
    const std::string text = "\xEF\xBB\xBF\n# \r\n[A]\r\nkey\x80\n\n last";
    std::size_t offset = 3;
    int number = 0;
    MARLINSUITE::ForEachSettingsLine(text, [&](const SettingsLine& line) {
        EXPECT_EQ(line.Number, ++number);
        EXPECT_EQ(line.Offset, offset);
        EXPECT_EQ(line.Bytes, text.substr(offset, line.Bytes.size()));
        EXPECT_EQ(line.Bytes.find('\n'), number == 6 ? std::string::npos : line.Bytes.size() - 1);
        offset += line.Bytes.size();
        return true;
    });
    EXPECT_EQ(number, 6);
    EXPECT_EQ(offset, text.size());
}

TEST(SettingsGrammar, AListenerEndsTheReading) {
    int count = 0;
    MARLINSUITE::ForEachSettingsLine("a\nb\nc\n",
                                     [&count](const SettingsLine&) { return ++count < 2; });
    EXPECT_EQ(count, 2);
}

}  // namespace
