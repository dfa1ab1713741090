// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/clock.h>
#include <marlin/runtime/timer.h>

#include <gtest/gtest.h>

namespace {

unsigned long timeNow = 0;

class TimerTest : public testing::Test {
protected:
    TimerTest() {
        PLATFORM::SetMillisecondClock([] { return timeNow; });
    }
    ~TimerTest() override { PLATFORM::SetMillisecondClock(nullptr); }

    static unsigned long Measure(unsigned long start, unsigned long stop) {
        Timer timer;
        timeNow = start;
        EXPECT_EQ(timer.Start(), start);
        timeNow = stop;
        EXPECT_EQ(timer.Stop(), stop);
        return timer.Elapse();
    }
};

TEST_F(TimerTest, ElapsedTimeIsRightAcrossTheWrapOfTheClock) {
    EXPECT_EQ(Measure(1000, 1234), 234U);
    EXPECT_EQ(Measure(0xFFFFFFF0, 0x10), 32U);
    EXPECT_EQ(Measure(5, 4), 0xFFFFFFFFU);
}

TEST_F(TimerTest, ATimerMeasuresFromTheLastStartToTheLastStop) {
    Timer timer;
    EXPECT_EQ(timer.Elapse(), 0U);
    timeNow = 100;
    timer.Start();
    EXPECT_EQ(timer.Elapse(), 4294967196U) << "2^32 - 100: it was never stopped";
    timeNow = 150;
    timer.Stop();
    timeNow = 900;
    const Timer copy = timer;
    EXPECT_EQ(timer.Elapse(), 50U);
    timer.Reset();
    EXPECT_EQ(timer.Elapse(), 0U);
    EXPECT_EQ(copy.Elapse(), 50U);
}

TEST_F(TimerTest, TheClockCountsModuloTwoToTheThirtySecond) {
    timeNow = 0x100000007;
    EXPECT_EQ(timeGetTime(), 7U);
    PLATFORM::SetMillisecondClock(nullptr);
    const unsigned long first = timeGetTime();
    EXPECT_LE((timeGetTime() - first) & 0xFFFFFFFF, 60000U) << "the clock ran backwards";
}

}  // namespace
