// SPDX-License-Identifier: MIT
#include <marlin/runtime/plot_error_reporter.h>

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

const ErrorString& filedEarly = PlotErrorReporter::Get()["early"].emplace_back("filed before main");

// A copy without errors, so that the case of the process's own reporter needs no order.
PlotErrorReporter Empty() {
    PlotErrorReporter reporter = PlotErrorReporter::Get();
    reporter.Clear();
    return reporter;
}

TEST(PlotErrors, MayBeFiledFromStaticConstructors) {
    EXPECT_EQ(&PlotErrorReporter::Get()["early"].at(0), &filedEarly);
    EXPECT_EQ(Empty().GetContexts(), Names());
}

TEST(PlotErrors, APlotHasErrorsFromItsNamingToItsClearing) {
    PlotErrorReporter reporter = Empty();
    EXPECT_TRUE(reporter.NoErrors("P"));
    reporter["P"].emplace_back("first");
    reporter["P"].emplace_back("second");
    std::vector<ErrorString>& kept = reporter["Q"];
    EXPECT_FALSE(reporter.NoErrors("P"));
    EXPECT_FALSE(reporter.NoErrors("Q"));
    EXPECT_TRUE(reporter.NoErrors("p"));
    EXPECT_EQ(reporter["P"].at(1).Text(), "second");
    reporter.Clear("P");
    reporter.Clear("unknown");
    kept.emplace_back("error");
    EXPECT_TRUE(reporter.NoErrors("P"));
    EXPECT_EQ(reporter["Q"].size(), 1U);
}

TEST(PlotErrors, NamesComeInByteOrder) {
    PlotErrorReporter reporter = Empty();
    for (const char* const name : {"b", "B", "a", "\xE4", ""}) {
        static_cast<void>(reporter[name]);
    }
    EXPECT_EQ(reporter.GetContexts(), (Names{"", "B", "a", "b", "\xE4"}));
}

}  // namespace
