// SPDX-License-Identifier: MIT
#include "observer_test.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

using NotificationTest = ObserverTest;

TEST_F(NotificationTest, HandlersMayChangeWhoIsNotified) {
    Subscribe({&a, &b, &c}, "X");
    const UTL::Observer saved = observer;
    std::unique_ptr<UTL::Observer> copy;
    Recorder d(*this, "d");
    std::vector<Idle> fresh(100);
    const struct {
        const char* Name;
        std::function<void()> Action;  // of b, which is called between c and a
        const char* Now;
        const char* Next;
    } cases[] = {
        {"whoever unsubscribes itself is not called again",
         [this] { observer.UnSubscribe(&b, "X"); }, "c:1 b:1 a:1 ", "c:1 a:1 "},
        {"whoever was unsubscribed before its turn is not called",
         [this] { observer.UnSubscribe(&a); }, "c:1 b:1 ", "c:1 b:1 "},
        {"whoever was called already may be unsubscribed", [this] { observer.UnSubscribe(&c); },
         "c:1 b:1 a:1 ", "b:1 a:1 "},
        {"whoever comes back is new and waits for the next notification",
         [this] {
             observer.UnSubscribe(&a, "X");
             observer.Subscribe(&a, "X");
         },
         "c:1 b:1 ", "a:1 c:1 b:1 "},
        {"many new subscribers wait for the next notification",
         [&] {
             for (Idle& subscriber : fresh) {
                 observer.Subscribe(&subscriber, "X");
             }
         },
         "c:1 b:1 a:1 ", "c:1 b:1 a:1 "},
        {"clearing the context ends its notification", [this] { observer.Clear("X"); }, "c:1 b:1 ",
         ""},
        {"clearing everything ends the notification", [this] { observer.Clear(); }, "c:1 b:1 ", ""},
        {"a cleared context may be filled anew",
         [this] {
             observer.Clear("X");
             observer.Subscribe(&a, "X");
             observer.Notify("X", 2);
         },
         "c:1 b:1 a:2 ", "a:1 "},
        {"notifications nest",
         [this] {
             observer.UnSubscribe(&c, "X");
             observer.Notify("X", 2);
             observer.Notify("Y", 3);
             EXPECT_EQ(observer.GetCurrentContext(), "Y");
         },
         "c:1 b:1 b:2 a:2 a:1 ", "b:1 a:1 "},
        {"the observer may be assigned to", [&] { observer = saved; }, "c:1 b:1 ", "c:1 b:1 a:1 "},
        {"a copy has those who are there",
         [&] {
             observer.UnSubscribe(&a, "X");
             copy = std::make_unique<UTL::Observer>(observer);
         },
         "c:1 b:1 ", "c:1 b:1 "},
        {"those who are moved in are told the new name alone",
         [&] {
             observer.Subscribe(&d, "Y");
             observer.RenameSubscribers("Y", "X");
         },
         "c:1 b:1 d:29 c:29 b:29 a:29 a:1 ", "d:1 c:1 b:1 a:1 "},
        {"renaming the context ends its notification",
         [this] { observer.RenameSubscribers("X", "Y"); }, "c:1 b:1 a:29 b:29 c:29 ", ""},
    };
    for (const auto& test : cases) {
        observer.Clear();
        Subscribe({&a, &b, &c}, "X");
        b.Action = test.Action;
        EXPECT_EQ(Heard("X"), test.Now) << test.Name;
        EXPECT_EQ(Heard("X"), test.Next) << test.Name;
    }
    EXPECT_EQ(Heard("Y"), "a:1 b:1 c:1 ") << "they were renamed last";
    EXPECT_EQ(HeardFrom(*copy, "X"), "c:1 b:1 ");
    for (const Idle& subscriber : fresh) {
        EXPECT_EQ(subscriber.Calls, 1);
    }
}

TEST_F(NotificationTest, ASubscriberMayDestroyItselfAndAllOthers) {
    auto d = std::make_unique<Recorder>(*this, "d");
    Subscribe({&a, d.get()}, "X");
    observer.Subscribe(d.get(), "Y");
    d->Action = [&d] { d.reset(); };
    EXPECT_EQ(Heard("X"), "d:1 a:1 ");
    EXPECT_EQ(Heard("X") + Heard("Y"), "a:1 ");
    std::vector<Idle> others(100);
    for (Idle& other : others) {
        observer.Subscribe(&other, "Z");
    }
    observer.Subscribe(&a, "Z");
    a.Action = [&others] { others.clear(); };
    EXPECT_EQ(Heard("Z"), "a:1 ");
    EXPECT_EQ(Heard("Z"), "a:1 ");
}

TEST_F(NotificationTest, WhatAHandlerThrowsReachesTheNotifier) {
    Subscribe({&a, &b, &c}, "X");
    b.Action = [this] {
        observer.UnSubscribe(&b, "X");
        throw std::runtime_error("from the handler");
    };
    EXPECT_THROW(observer.Notify("X", 1), std::runtime_error);
    EXPECT_EQ(Heard("X"), "c:1 a:1 ");
}

}  // namespace
