// SPDX-License-Identifier: MIT
#include <marlin/runtime/detail/context_table.h>

#include <string_view>

namespace UTL {

namespace {

constexpr std::array<unsigned int, 10> Weights = {2063, 3697, 1873, 1559, 971,
                                                  2819, 2521, 3847, 3023, 1447};

// What each character adds to the hash: its upper-case code times a weight, reduced. Codes above
// 127 count as they are, unsigned.
constexpr std::array<unsigned int, 256> Summands = [] {
    std::array<unsigned int, 256> summands{};
    for (unsigned int code = 0; code < 256; ++code) {
        const unsigned int upper = code >= 'a' && code <= 'z' ? code - 'a' + 'A' : code;
        summands[code] = upper * Weights[upper % 10] % ContextTable::BucketCount;
    }
    return summands;
}();

// The same letters in another order have one bucket, and names with numbers are often that.
unsigned int TagOf(const std::string& name) noexcept {
    unsigned int tag = 0;
    for (const char character : name) {
        tag = tag * 31 + static_cast<unsigned char>(character);
    }
    return tag;
}

// Reducing the sum once gives the same remainder as reducing it at each character. The sum of a
// million characters still fits.
constexpr unsigned int BucketOf(std::string_view name) noexcept {
    unsigned long long hash = 0;
    for (const char character : name) {
        hash += Summands[static_cast<unsigned char>(character)];
    }
    return static_cast<unsigned int>(hash % ContextTable::BucketCount);
}

static_assert(BucketOf("") == 0 && BucketOf("A") == 962, "65 x 2819 mod 2003");
static_assert(BucketOf("AB") == 1099 && BucketOf("Ab") == 1099, "the case is folded");

}  // namespace

ContextTable::Link& ContextTable::LinkOf(const std::string& name, unsigned int tag) noexcept {
    Link* link = &m_Buckets[BucketOf(name)];
    while (*link && !(*link)->Is(name, tag)) {
        link = &(*link)->Next;
    }
    return *link;
}

Context* ContextTable::Find(const std::string& name) noexcept {
    return LinkOf(name, TagOf(name)).get();
}

Context& ContextTable::FindOrAdd(const std::string& name) {
    const unsigned int tag = TagOf(name);
    Link& link = LinkOf(name, tag);
    if (!link) {
        link = std::make_unique<Context>(name, tag);
    }
    return *link;
}

std::unique_ptr<Context> ContextTable::Take(const std::string& name) noexcept {
    return TakeFrom(LinkOf(name, TagOf(name)));
}

}  // namespace UTL
