// SPDX-License-Identifier: MIT
#include <hosts/program.h>

namespace {

const std::string sealed = "123456789\x26\x39\xF4\xCB";  // the check value of the CRC

TEST(FileCommands, SealingAppendsTheTrailerOnce) {
    const Program program;
    program.Write("f", "123456789");
    ExpectSteps(program,
                {
                    {"file seal f", 0, "f: sealed, checksum CBF43926\n"},
                    {"file check f", 0, "f: whole: 9 bytes, checksum CBF43926\n"},
                    {"file seal f", 1, "", "f: sealed already; --force adds a second trailer"},
                });
    EXPECT_EQ(program.Read("f"), sealed);
    // The CRC of any bytes and their own CRC is one constant.
    ExpectSteps(program, {{"file seal --force f", 0, "f: sealed, checksum 2144DF1C\n"}});
    EXPECT_EQ(program.Read("f"), sealed + "\x1C\xDF\x44\x21");
}

TEST(FileCommands, CheckTellsTruncatedExtraBytesAndAWrongSumApart) {
    const Program program;
    struct Case {
        std::string Bytes;
        std::string Finding;
    };
    const Case cases[] = {
        {"", "truncated: 0 bytes, the trailer alone has 4"},
        {"abc", "truncated: 3 bytes, the trailer alone has 4"},
        {sealed.substr(0, 12), "truncated: the trailer lacks its last 1 byte"},
        {sealed.substr(0, 11), "truncated: the trailer lacks its last 2 bytes"},
        {sealed + "x", "extra bytes: a whole checksummed file of 13 bytes, and 1 byte behind it"},
        {sealed + std::string(5000, 'x'),
         "extra bytes: a whole checksummed file of 13 bytes, and 5000 bytes behind it"},
    };
    for (const Case& c : cases) {
        program.Write("f", c.Bytes);
        ExpectSteps(program, {{"file check f", 1, "", "f: " + c.Finding}});
        EXPECT_EQ(program.Read("f"), c.Bytes);
    }
    program.Write("f", "123456780\x26\x39\xF4\xCB");
    const ProgramResult result = program.Run("file check f");
    EXPECT_EQ(result.Code, 1);
    EXPECT_EQ(result.Err.find("marlin: f: wrong checksum: the trailer says CBF43926, "), 0U);
    program.Write("f", std::string(4, '\0'));  // an empty payload
    ExpectSteps(program, {{"file check --json f", 0,
                           "{\n  \"file\": \"f\",\n  \"state\": \"whole\",\n"
                           "  \"explanation\": \"whole: 0 bytes, checksum 00000000\"\n}\n"}});
}

}  // namespace
