// SPDX-License-Identifier: MIT
#include <string>

#include <hosts/program.h>

namespace {

// The expected numbers follow from Liberation Sans: 2048 units an em, a cell of 2288, digits 1139
// wide, a space 569. At size 2.5 its font has a cell of 3.69, at size 10 one of 14.763.

TEST(TextCommands, ATextIsMeasuredAboutItsJustifiedPoint) {
    const Program program;
    ExpectSteps(
        program,
        {{{"text", "measure", "--font", "liberation sans", "--size", "10", "0000"},
          0,
          " Width  Height  Corners                                 Line height  Lines\n"
          "29.397  14.763  0,0  29.397,0  29.397,14.763  0,14.763       14.763  0000\n"},
         {{"text", "measure", "--font", "Liberation Sans", "--justify", "Middle-Center", "--rotate",
           "90", "0000", ""},
          0,
          "Width  Height  Corners                                                 Line height"
          "  Lines\n"
          "7.348    3.69  -1.845,3.674  -1.845,-3.674  1.845,-3.674  1.845,3.674         3.69"
          "  0000\n"
          "    0       0  0,0  0,0  0,0  0,0                                                0\n"}});
}

// The bold face has an x of 1139 where the regular one has 1024.
TEST(TextCommands, ABoldItalicTextIsMeasuredWithItsOwnFace) {
    const Program program;
    const ProgramResult result = program.Run(
        {"text", "measure", "--font", "Liberation Sans", "--bold", "--italic", "--json", "x"});
    EXPECT_NE(result.Out.find("\"style\": \"Bold Italic\""), std::string::npos) << result.Out;
    EXPECT_NE(result.Out.find("\"width\": 1.837,"), std::string::npos) << result.Out;
}

TEST(TextCommands, AWrappedTextShowsItsLines) {
    const Program program;
    ExpectSteps(program, {{{"text", "measure", "--font", "Liberation Sans", "--wrap", "5", "--json",
                            "00 00\\P\xC3\x86"},
                           0,
                           "{\n  \"font\": {\n    \"asked\": \"Liberation Sans\",\n"
                           "    \"family\": \"Liberation Sans\",\n    \"style\": \"Regular\",\n"
                           "    \"substituted\": false\n  },\n  \"texts\": [\n    {\n"
                           "      \"text\": \"00 00\\\\P\xC3\x86\",\n      \"width\": 3.674,\n"
                           "      \"height\": 11.07,\n"
                           "      \"corners\": [\n"
                           "        {\n          \"x\": 0,\n          \"y\": 0\n        },\n"
                           "        {\n          \"x\": 3.674,\n          \"y\": 0\n        },\n"
                           "        {\n          \"x\": 3.674,\n          \"y\": 11.07\n"
                           "        },\n"
                           "        {\n          \"x\": 0,\n          \"y\": 11.07\n        }\n"
                           "      ],\n      \"lineHeight\": 3.69,\n"
                           "      \"lines\": [\n        \"00\",\n        \"00\",\n"
                           "        \"\xC3\x86\"\n      ]\n    }\n  ]\n}\n"}});
}

TEST(TextCommands, ADepthLabelIsShownInItsParts) {
    const Program program;
    const Words style = {"text", "depth", "--font", "Liberation Sans", "--presentation"};
    const auto with = [&style](const Words& more) {
        Words words = style;
        words.insert(words.end(), more.begin(), more.end());
        return words;
    };
    ExpectSteps(
        program,
        {{with({"2", "7.25"}), 0,
          "Part      Text  Width  Height  Corners\n"
          "integers  7     1.837    3.69  0,-0.7  1.837,-0.7  1.837,2.99  0,2.99\n"
          "decimals  25    2.452   2.463  2.212,0.53  4.664,0.53  4.664,2.993  2.212,2.993\n"},
         {with({"0", "--placement", "2", "--precision", "0", "--justify", "0", "1234"}), 0,
          "Part   Text  Width  Height  Corners\n"
          "whole  1234  7.348    3.69  -3.674,-1.845  3.674,-1.845  3.674,1.845  -3.674,1.845\n"}});
    const ProgramResult negative = program.Run(with({"4", "-.5"}));
    EXPECT_NE(negative.Out.find("integers  -0.  "), std::string::npos) << negative.Out;
    EXPECT_NE(negative.Out.find("decimals  50  "), std::string::npos) << negative.Out;
}

TEST(TextCommands, AMissingFaceIsToldWithTheOneThatStandsForIt) {
    const Program program;
    const ProgramResult fonts = program.Run("text fonts");
    EXPECT_NE(("\n" + fonts.Out).find("\nLiberation Sans\n"), std::string::npos) << fonts.Out;
    for (const Words& words : {Words{"text", "measure", "--font", "No such face", "x"},
                               Words{"text", "depth", "--font", "No such face", "1"}}) {
        const std::string told = "No such face is missing; measured with ";
        const ProgramResult result = program.Run(words);
        EXPECT_EQ(result.Code, 0);
        ASSERT_TRUE(result.Out.starts_with(told)) << result.Out;
        const std::string line = result.Out.substr(0, result.Out.find('\n') + 1);
        EXPECT_NE(("\n" + fonts.Out).find("\n" + line.substr(told.size())), std::string::npos);
    }
    const ProgramResult json =
        program.Run({"text", "depth", "--font", "No such face", "--json", "1"});
    EXPECT_NE(json.Out.find("\"substituted\": true"), std::string::npos) << json.Out;
}

TEST(TextCommands, WhatCannotBeMeasuredIsRefusedWithItsReason) {
    const Program program;
    const std::string code = " is not a whole number from 0 to ";
    ExpectSteps(
        program,
        {{"text measure --size 0 x", 2, "", "--size: \"0\" is not a number above 0"},
         {"text measure --wrap=-1 x", 2, "", "--wrap: \"-1\" is not a number above 0"},
         {"text measure --rotate inf x", 2, "", "--rotate: \"inf\" is not a number of degrees"},
         {"text measure --justify 12 x", 2, "",
          "--justify: \"12\" is not 0 to 11 or bottom, middle, top or baseline, then -left, "
          "-center or -right"},
         {"text depth --presentation 5 1", 2, "", "--presentation: \"5\"" + code + "4"},
         {"text depth --placement 3 1", 2, "", "--placement: \"3\"" + code + "2"},
         {"text depth --precision x 1", 2, "", "--precision: \"x\"" + code + "1074"},
         {"text depth 1 two", 2, "", "\"two\" is no depth"},
         {{"text", "measure", "--font", "Liberation Sans", "--size", "1e30", "x"},
          1,
          "",
          "\"Liberation Sans\" cannot be measured at size 1e+30"}});
    EXPECT_EQ(program.Run({"text", "measure", "\xE6\x97\xA5"}).Code, 2);
}

}  // namespace
