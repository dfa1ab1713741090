// SPDX-License-Identifier: MIT
#include <marlin/runtime/observer.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include <runtime/observer_recorder.h>

namespace {

// What handlers do while their context, "X", is notified. The order of calls is c, b, a.
class Handlers : public ObserverTest {
protected:
    Handlers() {
        for (Recorder* const subscriber : {&a, &b, &c}) {
            observer.Subscribe(subscriber, "X");
        }
    }

    // What is heard when b acts, and at the next notification.
    void Expect(const std::function<void()>& action, const std::string& now,
                const std::string& next) {
        b.Action = action;
        EXPECT_EQ(Heard("X"), now);
        EXPECT_EQ(Heard("X"), next);
    }
};

TEST_F(Handlers, WhoeverUnsubscribesItselfIsNotCalledAgain) {
    Expect([this] { observer.UnSubscribe(&b, "X"); }, "c:1 b:1 a:1 ", "c:1 a:1 ");
}

TEST_F(Handlers, WhoeverWasUnsubscribedBeforeItsTurnIsNotCalled) {
    Expect([this] { observer.UnSubscribe(&a); }, "c:1 b:1 ", "c:1 b:1 ");
}

TEST_F(Handlers, WhoeverWasCalledAlreadyMayBeUnsubscribed) {
    Expect([this] { observer.UnSubscribe(&c); }, "c:1 b:1 a:1 ", "b:1 a:1 ");
}

TEST_F(Handlers, WhoeverComesBackIsNewAndWaitsForTheNextNotification) {
    Expect(
        [this] {
            observer.UnSubscribe(&a, "X");
            observer.Subscribe(&a, "X");
        },
        "c:1 b:1 ", "a:1 c:1 b:1 ");
}

TEST_F(Handlers, ManyNewSubscribersWaitForTheNextNotification) {
    std::vector<std::unique_ptr<Recorder>> fresh;
    Expect(
        [&] {
            for (int count = 0; count < 100; ++count) {
                fresh.push_back(std::make_unique<Recorder>(*this, ""));
                observer.Subscribe(fresh.back().get(), "X");
            }
            fresh.resize(1);
        },
        "c:1 b:1 a:1 ", ":1 c:1 b:1 a:1 ");
}

TEST_F(Handlers, ClearingTheContextEndsItsNotification) {
    Expect([this] { observer.Clear("X"); }, "c:1 b:1 ", "");
}

TEST_F(Handlers, ClearingEverythingEndsTheNotification) {
    Expect([this] { observer.Clear(); }, "c:1 b:1 ", "");
}

TEST_F(Handlers, AClearedContextMayBeFilledAnew) {
    Expect(
        [this] {
            observer.Clear("X");
            observer.Subscribe(&a, "X");
            observer.Notify("X", 2);
        },
        "c:1 b:1 a:2 ", "a:1 ");
}

TEST_F(Handlers, RenamingTheContextEndsItsNotification) {
    Expect([this] { observer.RenameSubscribers("X", "Y"); }, "c:1 b:1 a:29 b:29 c:29 ", "");
    EXPECT_EQ(Heard("Y"), "a:1 b:1 c:1 ");
}

TEST_F(Handlers, SubscribersThatAreMovedInAreToldTheNewNameAlone) {
    Recorder d(*this, "d");
    observer.Subscribe(&d, "Y");
    Expect([this] { observer.RenameSubscribers("Y", "X"); }, "c:1 b:1 d:29 c:29 b:29 a:29 a:1 ",
           "d:1 c:1 b:1 a:1 ");
}

TEST_F(Handlers, ASubscriberMayDestroyItself) {
    auto d = std::make_unique<Recorder>(*this, "d");
    observer.Subscribe(d.get(), "X");
    observer.Subscribe(d.get(), "Y");
    d->Action = [&d] { d.reset(); };
    EXPECT_EQ(Heard("X"), "d:1 c:1 b:1 a:1 ");
    EXPECT_EQ(Heard("X") + Heard("Y"), "c:1 b:1 a:1 ");
}

TEST_F(Handlers, ASubscriberMayDestroyAllOthers) {
    std::vector<std::unique_ptr<Recorder>> others;
    for (int count = 0; count < 100; ++count) {
        others.push_back(std::make_unique<Recorder>(*this, "d"));
        observer.Subscribe(others.back().get(), "Y");
    }
    observer.Subscribe(&a, "Y");
    a.Action = [&others] { others.clear(); };
    EXPECT_EQ(Heard("Y"), "a:1 ");
    EXPECT_EQ(Heard("Y"), "a:1 ");
}

TEST_F(Handlers, NotificationsNest) {
    Expect(
        [this] {
            observer.UnSubscribe(&c, "X");
            observer.Notify("X", 2);
            observer.Notify("Y", 3);
            EXPECT_EQ(observer.GetCurrentContext(), "Y");
        },
        "c:1 b:1 b:2 a:2 a:1 ", "b:1 a:1 ");
}

TEST_F(Handlers, TheObserverMayBeAssignedTo) {
    const UTL::Observer saved = observer;
    Expect([&] { observer = saved; }, "c:1 b:1 ", "c:1 b:1 a:1 ");
}

TEST_F(Handlers, ACopyMadeDuringANotificationHasThoseWhoAreThere) {
    std::unique_ptr<UTL::Observer> copy;
    b.Action = [&] {
        observer.UnSubscribe(&a, "X");
        copy = std::make_unique<UTL::Observer>(observer);
    };
    EXPECT_EQ(Heard("X"), "c:1 b:1 ");
    EXPECT_EQ(HeardFrom(*copy, "X"), "c:1 b:1 ");
}

TEST_F(Handlers, WhatAHandlerThrowsReachesTheNotifier) {
    b.Action = [this] {
        observer.UnSubscribe(&b, "X");
        throw std::runtime_error("from the handler");
    };
    EXPECT_THROW(observer.Notify("X", 1), std::runtime_error);
    EXPECT_EQ(Heard("X"), "c:1 a:1 ");
}

}  // namespace
