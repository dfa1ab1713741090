// SPDX-License-Identifier: MIT
#include <marlin/runtime/plot_error_reporter.h>

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

// Filed before the program's own start, and whether a case found it then.
const std::size_t filedEarly = [] {
    PlotErrorReporter::Get()["early"].emplace_back("filed before main");
    return PlotErrorReporter::Get()["early"].size();
}();
bool foundLater = false;

class PlotErrors : public testing::Test {
protected:
    PlotErrors() {
        foundLater = foundLater || !reporter.NoErrors("early");
        reporter.Clear();
    }

    PlotErrorReporter& reporter = PlotErrorReporter::Get();
};

TEST_F(PlotErrors, ErrorsMayBeFiledFromStaticConstructors) {
    EXPECT_EQ(filedEarly, 1U);
    EXPECT_TRUE(foundLater);
    EXPECT_TRUE(reporter.NoErrors("early"));
    EXPECT_EQ(reporter.GetContexts(), Names());
}

TEST_F(PlotErrors, APlotHasErrorsOnceItIsNamed) {
    EXPECT_TRUE(reporter.NoErrors("P"));
    reporter["P"].emplace_back("first");
    reporter["P"].emplace_back("second");
    EXPECT_TRUE(reporter["Q"].empty());
    EXPECT_FALSE(reporter.NoErrors("P"));
    EXPECT_FALSE(reporter.NoErrors("Q"));
    EXPECT_TRUE(reporter.NoErrors("p"));
    ASSERT_EQ(reporter["P"].size(), 2U);
    EXPECT_EQ(reporter["P"][1].Text(), "second");
}

TEST_F(PlotErrors, NamesComeInByteOrder) {
    for (const char* const name : {"b", "B", "a", "\xE4", ""}) {
        static_cast<void>(reporter[name]);
    }
    EXPECT_EQ(reporter.GetContexts(), (Names{"", "B", "a", "b", "\xE4"}));
}

TEST_F(PlotErrors, ClearingAPlotLeavesTheOthers) {
    reporter["P"].emplace_back("error");
    std::vector<ErrorString>& kept = reporter["Q"];
    reporter.Clear("P");
    reporter.Clear("unknown");
    kept.emplace_back("error");
    EXPECT_TRUE(reporter.NoErrors("P"));
    EXPECT_EQ(reporter.GetContexts(), Names{"Q"});
    EXPECT_EQ(reporter["Q"].size(), 1U);
    reporter.Clear();
    EXPECT_TRUE(reporter.NoErrors("Q"));
}

TEST_F(PlotErrors, ACopyIsOfItsOwn) {
    reporter["P"].emplace_back("error");
    PlotErrorReporter copy = reporter;
    reporter.Clear();
    EXPECT_EQ(copy["P"].at(0).Text(), "error");
    reporter["Q"].emplace_back("other");
    PlotErrorReporter& alias = copy;
    copy = alias;
    EXPECT_EQ(copy.GetContexts(), Names{"P"});
    copy = reporter;
    EXPECT_EQ(copy.GetContexts(), Names{"Q"});
    copy.Clear();
    EXPECT_FALSE(reporter.NoErrors("Q"));
}

}  // namespace
