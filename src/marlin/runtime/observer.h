// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <memory>
#include <string>

namespace UTL {

class Context;
class Subscriber;
class Subscriptions;

/// Contexts, which are free-form names compared exactly, and the subscribers of each, the newest
/// first; a subscriber stands at most once in a context. Subscribers are not owned. There is one
/// observer in the process; a copy has the same subscribers in the same order and goes its own
/// way, but does not hear of their destruction. For one thread at a time.
///
/// Whoever is called may change anything: whoever left a context, was unsubscribed or destroyed
/// is not called any more, whoever joined a context is not called by notifications that were
/// under way, and a context that was cleared or renamed ends its own. Only the observer itself
/// must outlive its notifications.
class MARLIN_API Observer {
public:
    /// The message that tells the subscribers of a context of its new name.
    static constexpr int ContextRenamed = 29;

    Observer(const Observer& other);
    Observer& operator=(const Observer& other);
    ~Observer();

    /// The process-wide observer, made on the first call.
    static Observer& Get();

    /// The context of the last `Notify`, or the new name of the last `RenameSubscribers`.
    [[nodiscard]] const std::string& GetCurrentContext() const noexcept { return m_CurrentContext; }
    /// The old name of the last `RenameSubscribers`.
    [[nodiscard]] const std::string& GetPreviousContext() const noexcept {
        return m_PreviousContext;
    }

    /// Puts a subscriber in front of the others. Nothing changes if it is there, or is null.
    void Subscribe(Subscriber* subscriber, const std::string& context);
    void UnSubscribe(Subscriber* subscriber, const std::string& context);
    /// Takes a subscriber out of all contexts.
    void UnSubscribe(Subscriber* subscriber);

    /// Makes `context` the current one and calls its subscribers one after the other.
    void Notify(const std::string& context, int message);

    /// Moves the subscribers of `oldContext`, from the front, one by one to the front of
    /// `newContext`, unless they are there; `oldContext` is gone then. Both become the previous
    /// and the current context, and everyone in `newContext` gets the message `ContextRenamed`.
    /// With equal names only the previous and the current context change.
    void RenameSubscribers(const std::string& oldContext, const std::string& newContext);

    /// Removes all contexts, or one. The current and previous names stay.
    void Clear();
    void Clear(const std::string& context);

private:
    Observer();

    [[nodiscard]] bool IsCurrent(const std::string& context) const noexcept {
        return m_Current && m_CurrentContext == context;
    }
    void MakeCurrent(const std::string& context);

    std::unique_ptr<Subscriptions> m_Subscriptions;
    Context* m_Current = nullptr;  // that of the current name, or null when it is not known
    std::string m_CurrentContext;
    std::string m_PreviousContext;
};

}  // namespace UTL
