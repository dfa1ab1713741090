// SPDX-License-Identifier: MIT
#include <marlin/runtime/detail/subscriptions.h>

#include <utility>

namespace UTL {

void Subscriptions::Join(Subscriber& subscriber, Context& context) {
    if (m_ContextsOf[&subscriber].insert(&context).second) {
        context.Add(subscriber);
    }
}

void Subscriptions::Leave(const Subscriber& subscriber, Context& context) {
    const auto found = m_ContextsOf.find(&subscriber);
    if (found == m_ContextsOf.end() || found->second.erase(&context) == 0) {
        return;
    }
    if (found->second.empty()) {
        m_ContextsOf.erase(found);
    }
    context.Remove(subscriber);
}

void Subscriptions::LeaveAll(const Subscriber& subscriber) {
    const auto contexts = m_ContextsOf.extract(&subscriber);
    if (contexts) {
        for (Context* const context : contexts.mapped()) {
            context->Remove(subscriber);
        }
    }
}

void Subscriptions::Move(const std::string& from, const std::string& to) {
    Context& target = FindOrAdd(to);
    if (const Context* const source = m_Table.Find(from)) {
        const auto& oldestFirst = source->OldestFirst();
        for (auto place = oldestFirst.rbegin(); place != oldestFirst.rend(); ++place) {
            if (*place) {
                Join(**place, target);
            }
        }
        Remove(from);
    }
}

void Subscriptions::Remove(const std::string& name) {
    if (auto context = m_Table.Take(name)) {
        Drop(std::move(context));
    }
}

void Subscriptions::Clear() {
    m_Table.TakeAll([this](std::unique_ptr<Context> context) { Drop(std::move(context)); });
}

void Subscriptions::Drop(std::unique_ptr<Context> context) {
    const std::vector<Subscriber*> subscribers = context->OldestFirst();
    for (const Subscriber* const subscriber : subscribers) {
        if (subscriber) {
            Leave(*subscriber, *context);
        }
    }
    if (context->IsWalked()) {
        m_Dropped.push_back(std::move(context));
    }
}

void Subscriptions::ForgetDropped() {
    std::erase_if(m_Dropped, [](const auto& context) { return !context->IsWalked(); });
}

void Subscriptions::Add(const Subscriptions& other) {
    other.m_Table.ForEach([this](const Context& context) {
        Context& copy = FindOrAdd(context.Name());
        for (Subscriber* const subscriber : context.OldestFirst()) {
            if (subscriber) {
                Join(*subscriber, copy);
            }
        }
    });
}

}  // namespace UTL
