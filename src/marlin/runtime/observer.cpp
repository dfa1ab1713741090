// SPDX-License-Identifier: MIT
#include <marlin/runtime/detail/subscriptions.h>
#include <marlin/runtime/observer.h>
#include <marlin/runtime/subscriber.h>

#include <utility>

namespace UTL {

Observer::Observer() : m_Subscriptions(std::make_unique<Subscriptions>()) {}

Observer::Observer(const Observer& other)
    : m_Subscriptions(std::make_unique<Subscriptions>(*other.m_Subscriptions)),
      m_CurrentContext(other.m_CurrentContext),
      m_PreviousContext(other.m_PreviousContext) {}

Observer& Observer::operator=(const Observer& other) {
    if (this != &other) {
        Clear();
        m_Subscriptions->Add(*other.m_Subscriptions);
        m_CurrentContext = other.m_CurrentContext;
        m_PreviousContext = other.m_PreviousContext;
    }
    return *this;
}

Observer::~Observer() = default;

Observer& Observer::Get() {
    static Observer observer;
    return observer;
}

void Observer::Subscribe(Subscriber* subscriber, const std::string& context) {
    if (subscriber) {
        m_Subscriptions->Join(*subscriber, m_Subscriptions->FindOrAdd(context));
    }
}

void Observer::UnSubscribe(Subscriber* subscriber, const std::string& context) {
    if (subscriber) {
        m_Subscriptions->Leave(*subscriber, m_Subscriptions->FindOrAdd(context));
    }
}

void Observer::UnSubscribe(Subscriber* subscriber) {
    if (subscriber) {
        m_Subscriptions->LeaveAll(*subscriber);
    }
}

void Observer::MakeCurrent(const std::string& context) {
    Context& found = m_Subscriptions->FindOrAdd(context);
    m_Current = nullptr;
    m_CurrentContext = context;
    m_Current = &found;
}

void Observer::Notify(const std::string& context, int message) {
    // Most notifications follow one of the same context.
    if (!IsCurrent(context)) {
        MakeCurrent(context);
    }
    m_Subscriptions->Notify(*m_Current, message);
}

void Observer::RenameSubscribers(const std::string& oldContext, const std::string& newContext) {
    // The arguments may be the stored names themselves.
    std::string oldName = oldContext;
    const bool renamed = oldName != newContext;
    if (renamed) {
        m_Current = nullptr;
        m_Subscriptions->Move(oldName, newContext);
    }
    MakeCurrent(newContext);
    m_PreviousContext = std::move(oldName);
    if (renamed) {
        m_Subscriptions->Notify(*m_Current, ContextRenamed);
    }
}

void Observer::Clear() {
    m_Current = nullptr;
    m_Subscriptions->Clear();
}

void Observer::Clear(const std::string& context) {
    m_Current = nullptr;
    m_Subscriptions->Remove(context);
}

}  // namespace UTL
