// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/runtime/observer.h>
#include <marlin/runtime/subscriber.h>

#include <functional>
#include <string>

#include <gtest/gtest.h>

/// Each test starts with an empty observer and an empty log.
class ObserverTest : public testing::Test {
protected:
    /// Writes "name:message " to the log, then acts.
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

    /// What is logged while a context is notified.
    std::string Heard(const std::string& context, int message = 1) {
        return HeardFrom(observer, context, message);
    }
    std::string HeardFrom(UTL::Observer& notifier, const std::string& context, int message = 1) {
        log.clear();
        notifier.Notify(context, message);
        return std::exchange(log, std::string());
    }

    UTL::Observer& observer = UTL::Observer::Get();
    std::string log;
    Recorder a{*this, "a"};
    Recorder b{*this, "b"};
    Recorder c{*this, "c"};
};
