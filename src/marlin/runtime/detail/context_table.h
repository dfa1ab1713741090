// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/runtime/detail/context.h>

#include <array>
#include <memory>
#include <string>
#include <utility>

namespace UTL {

/// The contexts by name, in a hash table of 2003 chains.
class ContextTable {
public:
    static constexpr unsigned int BucketCount = 2003;

    ContextTable() = default;
    ContextTable(const ContextTable&) = delete;
    ContextTable& operator=(const ContextTable&) = delete;
    ~ContextTable() {
        TakeAll([](std::unique_ptr<Context>) {});
    }

    /// Null when there is none.
    [[nodiscard]] Context* Find(const std::string& name) noexcept;
    [[nodiscard]] Context& FindOrAdd(const std::string& name);

    /// Takes a context out of the table; null when there is none.
    std::unique_ptr<Context> Take(const std::string& name) noexcept;
    /// Takes all contexts out of the table, one by one, since a long chain of owners that goes
    /// at once is as deep a recursion.
    template <typename Consumer>
    void TakeAll(Consumer consume) {
        for (auto& bucket : m_Buckets) {
            while (bucket) {
                consume(TakeFrom(bucket));
            }
        }
    }

    template <typename Visitor>
    void ForEach(Visitor visit) const {
        for (const auto& bucket : m_Buckets) {
            for (const Context* context = bucket.get(); context; context = context->Next.get()) {
                visit(*context);
            }
        }
    }

private:
    using Link = std::unique_ptr<Context>;

    /// The link that holds the context of that name, or the empty one at its chain's end.
    [[nodiscard]] Link& LinkOf(const std::string& name, unsigned int tag) noexcept;
    static Link TakeFrom(Link& link) noexcept {
        Link taken = std::move(link);
        if (taken) {
            link = std::move(taken->Next);
        }
        return taken;
    }

    std::array<Link, BucketCount> m_Buckets;
};

}  // namespace UTL
