// SPDX-License-Identifier: MIT
#include "observer_test.h"

#include <memory>
#include <string>
#include <vector>

namespace {

// Destroyed after main, and after the observer's first use in a test.
Idle lateToGo;

TEST_F(ObserverTest, TheNewestSubscriberIsCalledFirstAndOnce) {
    Subscribe({&a, &b, &a}, "X");
    EXPECT_EQ(Heard("X", 5), "b:5 a:5 ");
    EXPECT_EQ(Heard("X", -7), "b:-7 a:-7 ");
}

TEST_F(ObserverTest, ContextsThatDifferInCaseOrLettersOrderAreApart) {
    const std::vector<std::string> names = {"AB",   "Ab", "BA", "ba", std::string("A\0B", 3),
                                            "\xE4", ""};
    for (const std::string& name : names) {
        EXPECT_EQ(Heard(name), "");
        EXPECT_EQ(observer.GetCurrentContext(), name);
        observer.Subscribe(&a, name);
        EXPECT_EQ(Heard(name), "a:1 ");
    }
    observer.Clear("Ab");
    for (const std::string& name : names) {
        EXPECT_EQ(Heard(name), name == "Ab" ? "" : "a:1 ") << name;
    }
}

TEST_F(ObserverTest, UnsubscribingLeavesOtherContextsAndSubscribers) {
    for (const char* const context : {"X", "Y", "Z"}) {
        Subscribe({&a, nullptr, &b}, context);
    }
    for (Recorder* const subscriber : std::vector<Recorder*>{&a, &a, &c, nullptr}) {
        observer.UnSubscribe(subscriber, "X");
    }
    EXPECT_EQ(Heard("X") + "| " + Heard("Y"), "b:1 | b:1 a:1 ");
    for (Recorder* const subscriber : std::vector<Recorder*>{&a, &c, nullptr}) {
        observer.UnSubscribe(subscriber);
    }
    EXPECT_EQ(Heard("Y") + "| " + Heard("Z"), "b:1 | b:1 ");
    observer.Subscribe(&a, "Y");
    EXPECT_EQ(Heard("Y"), "a:1 b:1 ") << "it is the newest again";
}

TEST_F(ObserverTest, DestroyedSubscribersAreInNoContextAndCopiesInNone) {
    {
        Recorder first(*this, "first");
        observer.Subscribe(&first, "X");
        observer.Subscribe(&first, "Y");
        Recorder copy = first;
        EXPECT_EQ(Heard("X"), "first:1 ");
        observer.UnSubscribe(&first, "X");
        observer.Subscribe(&copy, "X");
        static_cast<UTL::Subscriber&>(copy) = first;
        EXPECT_EQ(Heard("X") + Heard("Y"), "first:1 first:1 ");
    }
    EXPECT_EQ(Heard("X") + Heard("Y"), "");
}

TEST_F(ObserverTest, RenamingPutsTheMovedInFrontInReverseAndTellsEachOnce) {
    Subscribe({&a, &b}, "A");
    observer.Subscribe(&c, "B");
    observer.RenameSubscribers("A", "B");
    EXPECT_EQ(log, "a:29 b:29 c:29 ");
    ExpectNames("A", "B");
    EXPECT_EQ(Heard("A") + "| " + Heard("B"), "| a:1 b:1 c:1 ");
    observer.Subscribe(&c, "C");
    observer.RenameSubscribers("B", "C");
    EXPECT_EQ(log, "b:29 a:29 c:29 ");
    observer.UnSubscribe(&c);
    EXPECT_EQ(Heard("C"), "b:1 a:1 ");
}

TEST_F(ObserverTest, RenamingTakesTheSameNameAndTheStoredNamesThemselves) {
    observer.Subscribe(&a, "A");
    observer.Notify("before", 1);
    observer.RenameSubscribers("A", "A");
    EXPECT_EQ(log, "");
    ExpectNames("A", "A");
    EXPECT_EQ(Heard("A"), "a:1 ");
    observer.RenameSubscribers("A", "B");
    observer.RenameSubscribers(observer.GetCurrentContext(), observer.GetPreviousContext());
    ExpectNames("B", "A");
    EXPECT_EQ(Heard(observer.GetCurrentContext()), "a:1 ");
    observer.RenameSubscribers("unknown", "A");
    EXPECT_EQ(log, "a:29 ");
}

TEST_F(ObserverTest, ClearingKeepsTheNames) {
    observer.Subscribe(&a, "X");
    Subscribe({&a, &b}, "Y");
    observer.RenameSubscribers("X", "Z");
    observer.Clear("Y");
    observer.Clear("unknown");
    EXPECT_EQ(Heard("Z"), "a:1 ");
    observer.Clear();
    ExpectNames("X", "Z");
    EXPECT_EQ(Heard("Y") + Heard("Z"), "");
}

TEST_F(ObserverTest, ACopyNotifiesTheSameAndGoesItsOwnWay) {
    Subscribe({&a, &b}, "X");
    observer.RenameSubscribers("X", "Y");
    UTL::Observer copy = observer;
    const auto names = [&copy] { return copy.GetPreviousContext() + copy.GetCurrentContext(); };
    EXPECT_EQ(names(), "XY");
    copy.Subscribe(&c, "Y");
    copy.UnSubscribe(&b);
    EXPECT_EQ(Heard("Y"), "a:1 b:1 ");
    EXPECT_EQ(HeardFrom(copy, "Y"), "c:1 a:1 ");
    observer.Subscribe(&c, "Z");
    UTL::Observer& alias = copy;
    copy = alias;
    EXPECT_EQ(HeardFrom(copy, "Y"), "c:1 a:1 ");
    copy.RenameSubscribers("P", "C");
    copy = observer;
    EXPECT_EQ(names(), "XY");
    EXPECT_EQ(HeardFrom(copy, "Y") + "| " + HeardFrom(copy, "Z"), "a:1 b:1 | c:1 ");
}

TEST_F(ObserverTest, ASubscriberOfSeveralContextsLeavesThemInAnyOrder) {
    for (const std::string order : {"XYZ", "ZYX", "YXZ", "YZX"}) {
        std::string left = "XYZ";
        for (const char context : left) {
            Subscribe({&a, &b}, {context});
        }
        for (const char context : order) {
            if (context == 'Y') {
                observer.Clear("Y");
                observer.Subscribe(&b, "Y");
            }
            observer.UnSubscribe(&a, {context});
            std::erase(left, context);
            for (const char other : std::string("XYZ")) {
                const bool stays = left.find(other) != std::string::npos;
                EXPECT_EQ(Heard({other}), stays ? "b:1 a:1 " : "b:1 ") << order << context << other;
            }
        }
        observer.Clear();
    }
}

TEST_F(ObserverTest, ManyContextsAndManySubscribersOfOne) {
    constexpr int Contexts = 100'000;
    lateToGo.Calls = 0;  // by a run before
    std::vector<Idle> idle(10'000);
    for (int number = 0; number < Contexts; ++number) {
        observer.Subscribe(&lateToGo, "context " + std::to_string(number));
    }
    for (Idle& subscriber : idle) {
        observer.Subscribe(&subscriber, "context 7");
    }
    for (int number = 0; number < Contexts; ++number) {
        observer.Notify("context " + std::to_string(number), 1);
    }
    EXPECT_EQ(lateToGo.Calls, Contexts);
    for (const Idle& subscriber : idle) {
        ASSERT_EQ(subscriber.Calls, 1);
    }
    observer.RenameSubscribers("context 7", "context 8");
    EXPECT_EQ(lateToGo.Calls, Contexts + 1);
    idle.clear();
    observer.Notify("context 8", 1);
    EXPECT_EQ(lateToGo.Calls, Contexts + 2);
    observer.Clear();
    observer.Subscribe(&lateToGo, "at the end of the program");
}

TEST_F(ObserverTest, TheOrderStaysWhoeverComesAndGoes) {
    std::vector<std::unique_ptr<Recorder>> all;
    for (int number = 0; number < 12; ++number) {
        all.push_back(std::make_unique<Recorder>(*this, std::to_string(number)));
    }
    std::vector<std::size_t> newestFirst;
    // Steps of 5 visit all of the twelve; every third visit is a leaving.
    for (std::size_t step = 0; step < 120; ++step) {
        const std::size_t number = step * 5 % all.size();
        std::erase(newestFirst, number);
        observer.UnSubscribe(all[number].get(), "X");
        if (step % 3 != 0) {
            newestFirst.insert(newestFirst.begin(), number);
            observer.Subscribe(all[number].get(), "X");
        }
        std::string expected;
        for (const std::size_t subscribed : newestFirst) {
            expected += std::to_string(subscribed) + ":1 ";
        }
        ASSERT_EQ(Heard("X"), expected) << step;
    }
}

}  // namespace
