// SPDX-License-Identifier: MIT
#include <marlin/runtime/prog_thread_object.h>
#include <marlin/runtime/thread.h>

#include <future>
#include <sstream>

#include <gtest/gtest.h>

namespace {

class Work : public ProgThreadObject {
public:
    using ProgThreadObject::Progress;
    using ProgThreadObject::ProgText;

    int Execute(const bool&) override {
        for (int step = 0; step < 2000; ++step) {
            Progress += 0.5F;
            ProgText = step % 2 == 0 ? std::string(1000, 'e') : std::string(100, 'o');
        }
        ProgText = "do";
        ProgText += "ne";
        return 0;
    }
};

TEST(ProgThreadObject, AnyThreadReadsWholeTextsWhileTheWorkRunsAndACopyHasBoth) {
    Work work;
    Thread thread;
    ASSERT_TRUE(thread.Start(&work));
    const auto read = [&work] {
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
    };
    auto other = std::async(std::launch::async, read);
    read();
    other.get();
    const Work copy = work;
    Work assigned;
    assigned = work;
    for (const Work* const same : {&copy, static_cast<const Work*>(&assigned)}) {
        EXPECT_EQ(same->GetProgText(), "done");
        EXPECT_EQ(static_cast<const ProgThreadObject*>(same)->GetProgress(), 1000.0F);
    }
}

TEST(ProgThreadObject, ProgressIsCountedWithAsANumber) {
    Work work;
    auto& progress = work.Progress;
    progress = 3;
    progress *= 4;
    progress -= 2;
    progress /= 4;
    EXPECT_EQ(progress++, 2.5F);
    EXPECT_EQ(++progress, 4.5F);
    EXPECT_EQ(progress--, 4.5F);
    EXPECT_EQ(--progress, 2.5F);
    EXPECT_TRUE(progress == 2.5F && progress < 3 && progress >= work.Progress);
    EXPECT_EQ(std::to_string(progress * 2), "5.000000");
    progress = {};
    EXPECT_EQ(work.GetProgress(), 0.0F);
}

TEST(ProgThreadObject, TheTextIsChangedAndAskedAsAString) {
    Work work;
    auto& text = work.ProgText;
    const std::string part = "12";
    text = part;
    text += ' ';
    text.append("of ").append(2, '3').push_back('!');
    text.insert(0, "<").replace(1, 2, "7").erase(7).resize(9, '>');
    EXPECT_EQ(text, "<7 of 3>>");
    text.pop_back();
    EXPECT_EQ("a" + text + 'b' + part, "a<7 of 3>b12");
    EXPECT_EQ(text + text, "<7 of 3><7 of 3>");
    EXPECT_TRUE(text == text && text < "<8" && text > part && text != "x" && text >= text);
    EXPECT_EQ(text.size() + text.length(), 16U);
    EXPECT_EQ(text.find("of") + text.find('3') + text.rfind(' '), 3U + 6U + 5U);
    EXPECT_EQ(text.find('x'), MARLINSUITE::ProgressText::npos);
    EXPECT_EQ(text.substr(1, 1) + text.front() + text.back() + text[1] + text.at(3), "7<>7o");
    EXPECT_EQ(std::string(text.begin(), text.end()), text.c_str());
    EXPECT_TRUE(text.starts_with('<') && text.ends_with("3>") && text.compare("<") > 0);
    std::ostringstream stream;
    stream << text;
    EXPECT_EQ(stream.str() + text.data(), "<7 of 3><7 of 3>");
    text = {};
    EXPECT_TRUE(text.empty() && work.GetProgText().empty());
    text.assign(3, 'z').clear();
    EXPECT_EQ(std::string(text), "");
}

}  // namespace
