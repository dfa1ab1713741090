// SPDX-License-Identifier: MIT
#include <marlin/base/error_string.h>

#include <cstdlib>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace {

TEST(ErrorString, IsASuccessWhileItsMessageIsEmpty) {
    for (const ErrorString& success : {ErrorString(), ErrorString(true), ErrorString(""),
                                       ErrorString(static_cast<const char*>(nullptr))}) {
        EXPECT_TRUE(success.Empty());
    }
    EXPECT_EQ(ErrorString(false).Text(), "Operation failed.");
    ErrorString error;
    error << "a" << std::string("b") << CString("c") << static_cast<const char*>(nullptr);
    EXPECT_EQ(error.Text(), "abc");
}

TEST(ErrorString, RemembersTheLastFailureOfEachThread) {
    static_cast<void>(ErrorString("first"));
    ErrorString second("second");
    second << " more";
    second.SetCause("disk");
    static_cast<void>(ErrorString(true));
    std::string ofOther = "unset";
    std::thread([&] {
        ofOther = ErrorString::LastError().Text();
        static_cast<void>(ErrorString("other"));
    }).join();
    EXPECT_EQ(ofOther, "");
    EXPECT_EQ(ErrorString::LastError().Text() + ErrorString::LastError().Cause(),
              "second moredisk");
    ErrorString::RecordFailure("a: full");
    EXPECT_EQ(ErrorString::LastError().Text() + ErrorString::LastError().Cause(),
              "Operation failed.a: full");
    ErrorString::RecordSuccess();
    EXPECT_TRUE(ErrorString::LastError().Empty());
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
