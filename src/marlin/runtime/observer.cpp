// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/runtime/observer.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace UTL {

/// The places of a subscriber in its contexts. Most have one, which needs no memory of its own.
class Observer::Places {
public:
    [[nodiscard]] bool Empty() const noexcept { return !m_First && m_More.empty(); }
    /// False, and nothing added, where the context has a place.
    bool Add(Context& context, std::size_t place) {
        if (m_First == &context || (!m_More.empty() && m_More.contains(&context))) {
            return false;
        }
        if (m_First) {
            m_More.emplace(&context, place);
        } else {
            m_First = &context;
            m_Place = place;
        }
        return true;
    }
    std::optional<std::size_t> Remove(Context& context) {
        if (m_First == &context) {
            m_First = nullptr;
            return m_Place;
        }
        const auto removed = m_More.extract(&context);
        return removed ? std::optional(removed.mapped()) : std::nullopt;
    }
    template <class Call>
    void ForEach(const Call& call) const {
        if (m_First) {
            call(*m_First, m_Place);
        }
        for (const auto& [context, place] : m_More) {
            call(*context, place);
        }
    }

private:
    Context* m_First = nullptr;
    std::size_t m_Place = 0;
    std::map<Context*, std::size_t> m_More;
};

/// The contexts by name, and for each subscriber its places in them, so that leaving searches
/// neither the subscribers of a context nor all contexts.
class Observer::Table {
public:
    Table() = default;
    Table(const Table& other) { Add(other); }
    Table& operator=(const Table&) = delete;
    ~Table() = default;

    [[nodiscard]] Context& operator[](const std::string& name) {
        // Unlike an insertion, the search of a small table compares names without hashing them.
        const auto found = m_Contexts.find(name);
        return found == m_Contexts.end() ? m_Contexts[name] : found->second;
    }

    void Join(Subscriber& subscriber, Context& context);
    void Leave(const Subscriber& subscriber, const std::string& name);
    void LeaveAll(const Subscriber& subscriber);
    void Move(const std::string& from, Context& to);
    void Clear(const std::string& name);
    void Clear();
    /// Adds the contexts of another table, none of whose subscribers is here.
    void Add(const Table& other);
    void CloseGaps(Context& context);

private:
    using Contexts = std::unordered_map<std::string, Context>;
    void Vacate(Context& context, std::size_t place);
    void Clear(Contexts::iterator found);
    void Remove(Contexts::iterator found);

    Contexts m_Contexts;
    std::unordered_map<const Subscriber*, Places> m_Places;
};

void Observer::Table::Join(Subscriber& subscriber, Context& context) {
    if (m_Places[&subscriber].Add(context, context.OldestFirst.size())) {
        context.OldestFirst.push_back(&subscriber);
    }
}

void Observer::Table::Leave(const Subscriber& subscriber, const std::string& name) {
    const auto found = m_Contexts.find(name);
    const auto places = m_Places.find(&subscriber);
    if (found == m_Contexts.end() || places == m_Places.end()) {
        return;
    }
    const auto place = places->second.Remove(found->second);
    if (places->second.Empty()) {
        m_Places.erase(places);
    }
    if (place) {
        Vacate(found->second, *place);
    }
}

void Observer::Table::LeaveAll(const Subscriber& subscriber) {
    if (const auto left = m_Places.extract(&subscriber)) {
        left.mapped().ForEach(
            [this](Context& context, std::size_t place) { Vacate(context, place); });
    }
}

void Observer::Table::Vacate(Context& context, std::size_t place) {
    context.OldestFirst[place] = nullptr;
    ++context.Gaps;
    CloseGaps(context);
}

// Only when half of the places are empty, so that whoever leaves pays for one move at most. A walk
// goes by places, so none may move under it.
void Observer::Table::CloseGaps(Context& context) {
    if (context.Walks > 0 || 2 * context.Gaps < context.OldestFirst.size()) {
        return;
    }
    std::erase(context.OldestFirst, nullptr);
    context.Gaps = 0;
    for (std::size_t place = 0; place < context.OldestFirst.size(); ++place) {
        Places& places = m_Places[context.OldestFirst[place]];
        places.Remove(context);
        places.Add(context, place);
    }
}

void Observer::Table::Move(const std::string& from, Context& to) {
    const auto found = m_Contexts.find(from);
    if (found == m_Contexts.end()) {
        return;
    }
    const std::vector<Subscriber*>& moved = found->second.OldestFirst;
    for (auto newest = moved.rbegin(); newest != moved.rend(); ++newest) {
        if (*newest) {
            Places& places = m_Places[*newest];
            places.Remove(found->second);
            if (places.Add(to, to.OldestFirst.size())) {
                to.OldestFirst.push_back(*newest);
            }
        }
    }
    Remove(found);
}

void Observer::Table::Clear(const std::string& name) {
    if (const auto found = m_Contexts.find(name); found != m_Contexts.end()) {
        Clear(found);
    }
}

// Whoever is in no context any more stays in the list until it leaves: taking all off, one by one
// from all over the memory, would take longer than all else.
void Observer::Table::Clear(Contexts::iterator found) {
    for (const Subscriber* const subscriber : found->second.OldestFirst) {
        if (subscriber) {
            m_Places[subscriber].Remove(found->second);
        }
    }
    Remove(found);
}

void Observer::Table::Clear() {
    for (auto next = m_Contexts.begin(); next != m_Contexts.end();) {
        Clear(next++);
    }
}

// A walk still needs its context, so that one stays in the table without subscribers.
void Observer::Table::Remove(Contexts::iterator found) {
    Context& context = found->second;
    if (context.Walks == 0) {
        m_Contexts.erase(found);
    } else {
        std::ranges::fill(context.OldestFirst, nullptr);
        context.Gaps = context.OldestFirst.size();
    }
}

void Observer::Table::Add(const Table& other) {
    for (const auto& [name, context] : other.m_Contexts) {
        Context& copy = m_Contexts[name];
        for (Subscriber* const subscriber : context.OldestFirst) {
            if (subscriber) {
                Join(*subscriber, copy);
            }
        }
    }
}

Observer::Observer() : m_Table(std::make_unique<Table>()) {}

Observer::Observer(const Observer& other)
    : m_Table(std::make_unique<Table>(*other.m_Table)),
      m_CurrentContext(other.m_CurrentContext),
      m_PreviousContext(other.m_PreviousContext) {}

Observer& Observer::operator=(const Observer& other) {
    if (this != &other) {
        m_Table->Clear();
        m_Table->Add(*other.m_Table);
        m_CurrentContext = other.m_CurrentContext;
        m_PreviousContext = other.m_PreviousContext;
    }
    return *this;
}

Observer::~Observer() = default;

Observer& Observer::Get() {
    struct Instance {
        Observer Value;  // whose constructor is private
    };
    return MARLINSUITE::detail::ProcessObject<Instance>().Value;
}

void Observer::Subscribe(Subscriber* subscriber, const std::string& context) {
    if (subscriber) {
        m_Table->Join(*subscriber, (*m_Table)[context]);
    }
}

void Observer::UnSubscribe(Subscriber* subscriber, const std::string& context) {
    if (subscriber) {
        m_Table->Leave(*subscriber, context);
    }
}

void Observer::UnSubscribe(Subscriber* subscriber) {
    if (subscriber) {
        m_Table->LeaveAll(*subscriber);
    }
}

Observer::Context& Observer::MakeCurrent(const std::string& context) {
    Context& found = (*m_Table)[context];
    m_CurrentContext = context;
    return found;
}

void Observer::CloseGaps(Context& context) {
    m_Table->CloseGaps(context);
}

void Observer::RenameSubscribers(const std::string& oldContext, const std::string& newContext) {
    // The arguments may be the stored names themselves.
    std::string oldName = oldContext;
    Context& renamed = MakeCurrent(newContext);
    m_PreviousContext = std::move(oldName);
    if (m_PreviousContext != m_CurrentContext) {
        m_Table->Move(m_PreviousContext, renamed);
        Call(renamed, ContextRenamed);
    }
}

void Observer::Clear() {
    m_Table->Clear();
}

void Observer::Clear(const std::string& context) {
    m_Table->Clear(context);
}

}  // namespace UTL
