// SPDX-License-Identifier: MIT
#include <marlin/base/error_string.h>

#include <cstdlib>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace {

TEST(ErrorString, IsASuccessWhileItsMessageIsEmpty) {
    EXPECT_TRUE(ErrorString().Empty());
    EXPECT_TRUE(ErrorString(true).Empty());
    EXPECT_TRUE(ErrorString("").Empty());
    EXPECT_TRUE(ErrorString(static_cast<const char*>(nullptr)).Empty());
    EXPECT_EQ(ErrorString(false).Text(), "Operation failed.");
    ErrorString error;
    error << "a" << std::string("b") << CString("c");
    EXPECT_EQ(error.Text(), "abc");
}

TEST(ErrorString, RemembersTheLastFailureOfEachThread) {
    static_cast<void>(ErrorString("first"));
    ErrorString second("second");
    second << " more";
    static_cast<void>(ErrorString(true));
    EXPECT_EQ(ErrorString::LastError().Text(), "second more");
    std::string ofOther = "unset";
    std::thread([&] {
        ofOther = ErrorString::LastError().Text();
        static_cast<void>(ErrorString("other"));
    }).join();
    EXPECT_EQ(ofOther, "");
    EXPECT_EQ(ErrorString::LastError().Text(), "second more");
    second.SetCause("disk");
    EXPECT_EQ(ErrorString::LastError().Cause(), "disk");
    ErrorString::RecordFailure("a: full");
    EXPECT_EQ(ErrorString::LastError().Text(), "Operation failed.");
    EXPECT_EQ(ErrorString::LastError().Cause(), "a: full");
}

TEST(ErrorString, IsMadeUntilTheEndOfTheProgram) {
    struct FailsAtTheEnd {
        ~FailsAtTheEnd() {
            static_cast<void>(ErrorString(std::string(200, 'x')));
            std::_Exit(ErrorString::LastError().Empty() ? 7 : 1);
        }
    };
    const auto fail = [] {
        static const FailsAtTheEnd atTheEnd;
        static_cast<void>(ErrorString(std::string(100, 'x')));
        std::exit(0);
    };
    EXPECT_EXIT(fail(), testing::ExitedWithCode(7), "");
}

}  // namespace
