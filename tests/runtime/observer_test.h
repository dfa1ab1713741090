// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/runtime/observer.h>
#include <marlin/runtime/subscriber.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

/// Counts its notifications.
class Idle : public UTL::Subscriber {
public:
    void OnNotify(int) override { ++Calls; }

    int Calls = 0;
};

/// Each test starts with an empty observer and an empty log.
class ObserverTest : public testing::Test {
protected:
    /// Writes "name:message " to the log, then acts once.
    class Recorder : public UTL::Subscriber {
    public:
        Recorder(ObserverTest& test, std::string name) : m_Test(test), m_Name(std::move(name)) {}

        std::function<void()> Action;

        void OnNotify(int message) override {
            m_Test.log += m_Name + ":" + std::to_string(message) + " ";
            if (const auto action = std::exchange(Action, nullptr)) {
                action();
            }
        }

    private:
        ObserverTest& m_Test;
        std::string m_Name;
    };

    ObserverTest() { observer.Clear(); }

    /// They are called in the reverse order.
    void Subscribe(const std::vector<Recorder*>& subscribers, const std::string& context) {
        for (Recorder* const subscriber : subscribers) {
            observer.Subscribe(subscriber, context);
        }
    }

    /// The log of the notification of a context.
    std::string Heard(const std::string& context, int message = 1) {
        return HeardFrom(observer, context, message);
    }
    std::string HeardFrom(UTL::Observer& notifier, const std::string& context, int message = 1) {
        log.clear();
        notifier.Notify(context, message);
        return std::exchange(log, std::string());
    }

    void ExpectNames(const std::string& previous, const std::string& current) const {
        EXPECT_EQ(observer.GetPreviousContext(), previous);
        EXPECT_EQ(observer.GetCurrentContext(), current);
    }

    UTL::Observer& observer = UTL::Observer::Get();
    std::string log;
    Recorder a{*this, "a"};
    Recorder b{*this, "b"};
    Recorder c{*this, "c"};
};
