// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/runtime/detail/context_table.h>

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace UTL {

/// Who is subscribed to what, found from either side: each context has its subscribers, and each
/// subscriber its contexts. A context that is dropped while it is walked is kept, empty, until
/// its walks have ended.
class Subscriptions {
public:
    Subscriptions() = default;
    Subscriptions(const Subscriptions& other) { Add(other); }
    Subscriptions& operator=(const Subscriptions&) = delete;
    ~Subscriptions() = default;

    [[nodiscard]] Context& FindOrAdd(const std::string& name) { return m_Table.FindOrAdd(name); }

    void Join(Subscriber& subscriber, Context& context);
    void Leave(const Subscriber& subscriber, Context& context);
    void LeaveAll(const Subscriber& subscriber);

    void Notify(Context& context, int message) {
        {
            const Context::Walk walk(context);
            context.Notify(message);
        }
        if (!m_Dropped.empty()) {
            ForgetDropped();
        }
    }

    /// Puts the subscribers of one context, from the newest, in front of those of another one,
    /// and removes the first one. The names differ.
    void Move(const std::string& from, const std::string& to);

    void Remove(const std::string& name);
    void Clear();
    /// Adds the contexts of another one; none of them is known here.
    void Add(const Subscriptions& other);

private:
    void Drop(std::unique_ptr<Context> context);
    void ForgetDropped();

    ContextTable m_Table;
    std::unordered_map<const Subscriber*, std::unordered_set<Context*>> m_ContextsOf;
    std::vector<std::unique_ptr<Context>> m_Dropped;
};

}  // namespace UTL
