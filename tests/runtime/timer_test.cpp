// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/clock.h>
#include <marlin/platform/kernel/detail/test_levers.h>
#include <marlin/runtime/timer.h>

#include <gtest/gtest.h>

namespace {

unsigned long timeNow = 0;

class TimerTest : public testing::Test {
protected:
    TimerTest() {
        PLATFORM::detail::SetMillisecondClock([] { return timeNow; });
    }
    ~TimerTest() override { PLATFORM::detail::SetMillisecondClock(nullptr); }
};

TEST_F(TimerTest, ATimerMeasuresFromTheLastStartToTheLastStopAcrossTheWrapOfTheClock) {
    const struct {
        unsigned long Start, Stop, Elapsed;
    } cases[] = {{1000, 1234, 234}, {0xFFFFFFF0, 0x10, 32}, {5, 4, 0xFFFFFFFF}};
    Timer timer;
    EXPECT_EQ(timer.Elapse(), 0U);
    for (const auto& c : cases) {
        timeNow = c.Start;
        EXPECT_EQ(timer.Start(), c.Start);
        timeNow = c.Stop;
        EXPECT_EQ(timer.Stop(), c.Stop);
        timeNow = 900;
        EXPECT_EQ(timer.Elapse(), c.Elapsed) << c.Start;
    }
    timer.Reset();
    EXPECT_EQ(timer.Elapse(), 0U);
    timeNow = 100;
    timer.Start();
    EXPECT_EQ(timer.Elapse(), 4294967196U) << "2^32 - 100: it was never stopped";
}

TEST_F(TimerTest, TheClockCountsModuloTwoToTheThirtySecond) {
    timeNow = 0x100000007;
    EXPECT_EQ(timeGetTime(), 7U);
    PLATFORM::detail::SetMillisecondClock(nullptr);
    const unsigned long first = timeGetTime();
    EXPECT_LE((timeGetTime() - first) & 0xFFFFFFFF, 60000U) << "the clock ran backwards";
}

}  // namespace
