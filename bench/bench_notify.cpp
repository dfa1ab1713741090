// SPDX-License-Identifier: MIT
// A context with 1, 10 and 1,000 subscribers is notified. Each of them adds up the messages.
#include <marlin/runtime/observer.h>
#include <marlin/runtime/subscriber.h>

#include <QObject>
#include <algorithm>
#include <memory>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <sigc++/sigc++.h>

namespace {

const std::string contextName = "Chart 17/soundings";

class MarlinReceiver : public UTL::Subscriber {
public:
    void OnNotify(int message) override { Sum += message; }
    long Sum = 0;
};

class SignalReceiver : public sigc::trackable {
public:
    void OnNotify(int message) { Sum += message; }
    long Sum = 0;
};

class QtSender : public QObject {
    Q_OBJECT
Q_SIGNALS:
    void Notified(int message);
};

class QtReceiver : public QObject {
    Q_OBJECT
public:
    Q_SLOT void OnNotify(int message) { Sum += message; }
    long Sum = 0;
};

template <class Receiver>
bool WereAllCalled(const std::vector<std::unique_ptr<Receiver>>& receivers) {
    return std::ranges::all_of(receivers, [](const auto& receiver) { return receiver->Sum == 1; });
}

// A contestant: someone who notifies, and those who are notified, all of them once before the
// clock starts.
template <class Sender, class Receiver, class Connect, class Send>
void Enter(const std::string& name, int count, Connect connect, Send send) {
    struct Group {
        Sender From;
        std::vector<std::unique_ptr<Receiver>> To;
    };
    BENCH::Contest(
        name,
        [=] {
            auto group = std::make_unique<Group>();
            for (int i = 0; i < count; ++i) {
                group->To.push_back(std::make_unique<Receiver>());
                connect(group->From, *group->To.back());
            }
            send(group->From, 1);
            BENCH::Require(WereAllCalled(group->To), "the first notification");
            return group;
        },
        [send](const std::unique_ptr<Group>& group) { send(group->From, 2); });
}

struct ProcessObserver {};

void EnterAll(int count) {
    const std::string job = "notify_" + std::to_string(count);
    Enter<ProcessObserver, MarlinReceiver>(
        job + "/marlin", count,
        [](ProcessObserver&, MarlinReceiver& receiver) {
            UTL::Observer::Get().Subscribe(&receiver, contextName);
        },
        [](ProcessObserver&, int message) { UTL::Observer::Get().Notify(contextName, message); });
    const auto emitQt = [](QtSender& sender, int message) { Q_EMIT sender.Notified(message); };
    Enter<QtSender, QtReceiver>(
        job + "/qt", count,
        [](QtSender& sender, QtReceiver& receiver) {
            QObject::connect(&sender, &QtSender::Notified, &receiver, &QtReceiver::OnNotify,
                             Qt::DirectConnection);
        },
        emitQt);
    Enter<QtSender, QtReceiver>(
        job + "/qt_by_name", count,
        [](QtSender& sender, QtReceiver& receiver) {
            QObject::connect(&sender, SIGNAL(Notified(int)), &receiver, SLOT(OnNotify(int)),
                             Qt::DirectConnection);
        },
        emitQt);
    Enter<sigc::signal<void, int>, SignalReceiver>(
        job + "/sigc", count,
        [](sigc::signal<void, int>& signal, SignalReceiver& receiver) {
            signal.connect(sigc::mem_fun(receiver, &SignalReceiver::OnNotify));
        },
        [](sigc::signal<void, int>& signal, int message) { signal.emit(message); });
}

}  // namespace

int main(int argc, char** argv) {
    for (const int count : {1, 10, 1'000}) {
        EnterAll(count);
    }
    return BENCH::Run(argc, argv);
}

#include "bench_notify.moc"
