// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/runtime/subscriber.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace UTL {

/// Contexts, which are free-form names compared exactly, and the subscribers of each, newest
/// first; a subscriber is at most once in a context. Subscribers are not owned. The process has
/// one observer; a copy starts with the same subscribers in the same order, goes its own way and
/// does not hear of their destruction. For one thread at a time.
///
/// A handler may change anything: nobody is called after it left the context or was destroyed,
/// newcomers wait for the next notification, and clearing or renaming a context ends the
/// notifications of it that are under way. Only the observer must outlive its notifications.
///
/// @code
/// struct Plot : UTL::Subscriber {
///     void OnNotify(int message) override { Last = message; }
///     int Last = 0;
/// };
/// Plot plot;
/// UTL::Observer::Get().Subscribe(&plot, "Chart 17");
/// UTL::Observer::Get().Notify("Chart 17", 5);
/// assert(plot.Last == 5);
/// @endcode
class MARLIN_API Observer {
public:
    /// The message that subscribers get when their context has a new name.
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
    void Notify(const std::string& context, int message) { Call(MakeCurrent(context), message); }

    /// Moves the subscribers of `oldContext`, from the front, one by one to the front of
    /// `newContext`, unless they are there; `oldContext` is gone then. The two names become the
    /// previous and the current one, and everyone in `newContext` gets `ContextRenamed`.
    /// With equal names only the previous and the current name change.
    void RenameSubscribers(const std::string& oldContext, const std::string& newContext);

    /// Removes all contexts, or one. The current and previous names stay.
    void Clear();
    void Clear(const std::string& context);

private:
    class Places;
    class Table;

    /// The subscribers of one name. Whoever leaves only empties its place, so that places keep
    /// their meaning for walks and for the other subscribers.
    struct Context {
        std::vector<Subscriber*> OldestFirst;  // null where somebody left
        std::size_t Gaps = 0;
        int Walks = 0;
    };

    /// Counts a walk over a context for as long as it lives, also when a handler throws.
    class Walk {
    public:
        explicit Walk(Context& context) noexcept : m_Context(context) { ++m_Context.Walks; }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;
        ~Walk() { --m_Context.Walks; }

    private:
        Context& m_Context;
    };

    Observer();

    [[nodiscard]] Context& MakeCurrent(const std::string& context);
    void CloseGaps(Context& context);

    // Inline, so that the host's code calls its handlers itself: 17 ns for ten of them, 36 when the
    // library does. By place, since handlers may subscribe others while the walk goes on.
    void Call(Context& context, int message) {
        {
            const Walk walk(context);
            for (std::size_t place = context.OldestFirst.size(); place-- > 0;) {
                if (Subscriber* const subscriber = context.OldestFirst[place]) {
                    subscriber->OnNotify(message);
                }
            }
        }
        if (context.Gaps > 0) {
            CloseGaps(context);
        }
    }

    std::unique_ptr<Table> m_Table;
    std::string m_CurrentContext;
    std::string m_PreviousContext;
};

}  // namespace UTL
