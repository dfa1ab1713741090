// SPDX-License-Identifier: MIT
#include <marlin/runtime/prog_thread_object.h>
#include <marlin/runtime/thread.h>

#include <gtest/gtest.h>

namespace {

class Work : public ProgThreadObject {
public:
    int Execute(const bool& keepRunning) override {
        const std::string even(1000, 'e');
        const std::string odd(100, 'o');
        for (int step = 0; step < 2000 && ShallGoOn(keepRunning); ++step) {
            Progress += 0.5F;
            ProgText = step % 2 == 0 ? even : odd;
        }
        ProgText = "do";
        ProgText += "ne";
        return 0;
    }
};

TEST(ProgThreadObject, TheTextIsNeverReadHalfWrittenAndIsCopiedWithTheProgress) {
    Work work;
    Thread thread;
    ASSERT_TRUE(thread.Start(&work));
    float last = 0;
    while (work.GetProgText() != "done") {
        const std::string& text = work.GetProgText();
        const std::string whole = text;
        EXPECT_TRUE(text.empty() || text == "do" || text == "done" ||
                    text == std::string(1000, 'e') || text == std::string(100, 'o'));
        EXPECT_EQ(text, whole) << "the copy changes at the next reading only";
        EXPECT_GE(work.GetProgress(), last);
        last = work.GetProgress();
    }
    const Work copy = work;
    Work assigned;
    assigned = work;
    for (const Work& same : {copy, assigned}) {
        EXPECT_EQ(same.GetProgress(), 1000.0F);
        EXPECT_EQ(same.GetProgText(), "done");
    }
}

}  // namespace
