// SPDX-License-Identifier: MIT
#include <marlin/runtime/observer.h>

#include <memory>
#include <vector>

#include <runtime/observer_recorder.h>

namespace {

// A subscriber that is destroyed after main, and after the observer's first use in a test.
class Idle : public UTL::Subscriber {
public:
    void OnNotify(int) override { ++Calls; }

    int Calls = 0;
};

Idle lateToGo;

TEST_F(ObserverTest, TheNewestSubscriberIsCalledFirstAndOnce) {
    observer.Subscribe(&a, "X");
    observer.Subscribe(&b, "X");
    observer.Subscribe(&a, "X");
    EXPECT_EQ(Heard("X", 5), "b:5 a:5 ");
    EXPECT_EQ(Heard("X", -7), "b:-7 a:-7 ");
}

TEST_F(ObserverTest, NotifyingMakesAContextCurrentEvenWithoutSubscribers) {
    EXPECT_EQ(Heard("nobody"), "");
    EXPECT_EQ(observer.GetCurrentContext(), "nobody");
    observer.Subscribe(&a, "");
    EXPECT_EQ(Heard(""), "a:1 ");
    EXPECT_EQ(observer.GetCurrentContext(), "");
}

TEST_F(ObserverTest, ContextsThatDifferInCaseOrLettersOrderAreApart) {
    // The first pairs share a chain of the hash table.
    const std::vector<std::string> names = {"AB", "Ab", "BA", "ba", std::string("A\0B", 3), "\xE4"};
    for (const std::string& name : names) {
        EXPECT_EQ(Heard(name), "");
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
        observer.Subscribe(&a, context);
        observer.Subscribe(&b, context);
    }
    observer.UnSubscribe(&a, "X");
    observer.UnSubscribe(&a, "X");
    observer.UnSubscribe(&c, "X");
    EXPECT_EQ(Heard("X") + "| " + Heard("Y"), "b:1 | b:1 a:1 ");
    observer.UnSubscribe(&a);
    observer.UnSubscribe(&c);
    EXPECT_EQ(Heard("Y") + "| " + Heard("Z"), "b:1 | b:1 ");
    observer.Subscribe(&a, "Y");
    EXPECT_EQ(Heard("Y"), "a:1 b:1 ") << "it is the newest again";
}

TEST_F(ObserverTest, NullIsNoSubscriber) {
    observer.Subscribe(nullptr, "X");
    observer.UnSubscribe(nullptr, "X");
    observer.UnSubscribe(nullptr);
    EXPECT_EQ(Heard("X"), "");
}

TEST_F(ObserverTest, DestroyedSubscribersAreInNoContextAndCopiesInNone) {
    {
        const auto first = std::make_unique<Recorder>(*this, "first");
        observer.Subscribe(first.get(), "X");
        observer.Subscribe(first.get(), "Y");
        Recorder copy = *first;
        EXPECT_EQ(Heard("X"), "first:1 ");
        observer.UnSubscribe(first.get(), "X");
        observer.Subscribe(&copy, "X");
        static_cast<UTL::Subscriber&>(copy) = *first;
        EXPECT_EQ(Heard("X") + Heard("Y"), "first:1 first:1 ");
    }
    EXPECT_EQ(Heard("X") + Heard("Y"), "");
}

TEST_F(ObserverTest, RenamingPutsTheMovedInFrontInReverseAndTellsAll) {
    observer.Subscribe(&a, "A");
    observer.Subscribe(&b, "A");
    observer.Subscribe(&c, "B");
    observer.RenameSubscribers("A", "B");
    EXPECT_EQ(log, "a:29 b:29 c:29 ");
    EXPECT_EQ(observer.GetPreviousContext(), "A");
    EXPECT_EQ(observer.GetCurrentContext(), "B");
    EXPECT_EQ(Heard("A"), "");
    EXPECT_EQ(Heard("B"), "a:1 b:1 c:1 ");
}

TEST_F(ObserverTest, ASubscriberOfBothNamesIsToldOnce) {
    observer.Subscribe(&a, "A");
    observer.Subscribe(&b, "A");
    observer.Subscribe(&a, "B");
    observer.RenameSubscribers("A", "B");
    EXPECT_EQ(log, "b:29 a:29 ");
    observer.UnSubscribe(&a);
    EXPECT_EQ(Heard("B"), "b:1 ");
}

TEST_F(ObserverTest, RenamingToTheSameNameSetsTheNamesAlone) {
    observer.Subscribe(&a, "A");
    observer.Notify("before", 1);
    observer.RenameSubscribers("A", "A");
    EXPECT_EQ(log, "");
    EXPECT_EQ(observer.GetPreviousContext(), "A");
    EXPECT_EQ(observer.GetCurrentContext(), "A");
    EXPECT_EQ(Heard("A"), "a:1 ");
}

TEST_F(ObserverTest, RenamingTakesTheStoredNamesThemselves) {
    observer.Subscribe(&a, "A");
    observer.RenameSubscribers("A", "B");
    observer.RenameSubscribers(observer.GetCurrentContext(), observer.GetPreviousContext());
    EXPECT_EQ(observer.GetPreviousContext(), "B");
    EXPECT_EQ(observer.GetCurrentContext(), "A");
    EXPECT_EQ(Heard(observer.GetCurrentContext()), "a:1 ");
    observer.RenameSubscribers("unknown", "A");
    EXPECT_EQ(log, "a:29 ");
}

TEST_F(ObserverTest, ClearingKeepsTheNames) {
    observer.Subscribe(&a, "X");
    observer.Subscribe(&a, "Y");
    observer.Subscribe(&b, "Y");
    observer.RenameSubscribers("X", "Z");
    observer.Clear("Y");
    observer.Clear("unknown");
    EXPECT_EQ(Heard("Z"), "a:1 ");
    observer.Clear();
    EXPECT_EQ(observer.GetPreviousContext(), "X");
    EXPECT_EQ(observer.GetCurrentContext(), "Z");
    EXPECT_EQ(Heard("Y") + Heard("Z"), "");
}

TEST_F(ObserverTest, ACopyNotifiesTheSameAndGoesItsOwnWay) {
    observer.Subscribe(&a, "X");
    observer.Subscribe(&b, "X");
    observer.RenameSubscribers("X", "Y");
    UTL::Observer copy = observer;
    EXPECT_EQ(copy.GetPreviousContext() + copy.GetCurrentContext(), "XY");
    copy.Subscribe(&c, "Y");
    copy.UnSubscribe(&b);
    EXPECT_EQ(Heard("Y"), "a:1 b:1 ");
    EXPECT_EQ(HeardFrom(copy, "Y"), "c:1 a:1 ");
    observer.Subscribe(&c, "Z");
    UTL::Observer& alias = copy;
    copy = alias;
    EXPECT_EQ(HeardFrom(copy, "Y"), "c:1 a:1 ");
    copy = observer;
    EXPECT_EQ(HeardFrom(copy, "Y") + "| " + HeardFrom(copy, "Z"), "a:1 b:1 | c:1 ");
}

TEST_F(ObserverTest, ManyContextsAndManySubscribersOfOne) {
    constexpr int Contexts = 100'000;
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

}  // namespace
