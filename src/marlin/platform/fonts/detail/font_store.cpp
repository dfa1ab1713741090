// SPDX-License-Identifier: MIT
#include <marlin/platform/fonts/detail/font_store.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <utility>

namespace PLATFORM {

namespace {

constexpr std::size_t BucketCount = 256;

// Entries stay in their lists, and lists only grow at their heads, so they are read unlocked.
constinit std::array<std::atomic<const FontEntry*>, BucketCount> buckets{};
constinit std::mutex fontLock;
constinit std::atomic<std::size_t> fileOpens{0};
constinit std::atomic<std::size_t> queries{0};

using FaceKey = std::pair<std::string, int>;

// What the lists point to. Nothing is given up before the process ends: fonts keep pointers.
struct Holdings {
    FontQuery Query;
    std::map<FaceKey, const FontFace*> Faces;
    std::vector<std::unique_ptr<const FontFace>> AllFaces;
    std::vector<std::unique_ptr<const FontEntry>> Entries;
};

Holdings& Held() {
    static Holdings& holdings = *std::make_unique<Holdings>().release();
    return holdings;
}

// From a few bytes of the name: there are few fonts, and the wish is compared in full anyway.
std::size_t BucketOf(std::string_view face, int weight, bool italic) noexcept {
    std::size_t hash = face.size() * 5 + static_cast<std::size_t>(weight) / 100 * 2 + italic;
    if (!face.empty()) {
        hash += static_cast<unsigned char>(face.front()) * std::size_t{31} +
                static_cast<unsigned char>(face[face.size() / 2]) * std::size_t{17} +
                static_cast<unsigned char>(face.back()) * std::size_t{7};
    }
    return hash % BucketCount;
}

const FontEntry* Look(std::size_t bucket, std::string_view face, int weight, bool italic,
                      bool outlineFirst) noexcept {
    const FontEntry* entry = buckets[bucket].load(std::memory_order_acquire);
    while (entry && (entry->Wish.Weight != weight || entry->Wish.Italic != italic ||
                     entry->Wish.OutlineFirst != outlineFirst || entry->Wish.Face != face)) {
        entry = entry->Next;
    }
    return entry;
}

const FontFace* FaceOf(const FontMatch& match) {
    const FaceKey key(match.Path, match.Index);
    if (const auto known = Held().Faces.find(key); known != Held().Faces.end()) {
        return known->second;
    }
    fileOpens.fetch_add(1, std::memory_order_relaxed);
    std::unique_ptr<const FontFace> face = FontFace::Load(match.Path, match.Index);
    if (!face) {
        return nullptr;
    }
    Held().AllFaces.push_back(std::move(face));
    return Held().Faces.emplace(key, Held().AllFaces.back().get()).first->second;
}

const FontEntry* MakeEntry(FontWish wish, std::size_t bucket) {
    queries.fetch_add(1, std::memory_order_relaxed);
    bool outline = false;
    std::optional<FontMatch> match = Held().Query.Match(wish, outline);
    const FontFace* face = match && outline ? FaceOf(*match) : nullptr;
    if (!face) {
        Held().Query.Refresh();
        return nullptr;
    }
    const FontEntry* head = buckets[bucket].load(std::memory_order_relaxed);
    Held().Entries.push_back(std::make_unique<const FontEntry>(
        FontEntry{std::move(wish), std::move(*match), face, head}));
    buckets[bucket].store(Held().Entries.back().get(), std::memory_order_release);
    return Held().Entries.back().get();
}

}  // namespace

constinit std::atomic<std::size_t> FontStore::m_Edition{0};

void FontStore::Forget() noexcept {
    for (auto& bucket : buckets) {
        bucket.store(nullptr, std::memory_order_release);
    }
    Held().Faces.clear();
    m_Edition.fetch_add(1, std::memory_order_release);
}

const FontEntry* FontStore::Find(std::string_view face, int weight, bool italic,
                                 bool outlineFirst) {
    const int counted = weight <= 0 ? 400 : std::min(weight, 1000);
    const std::size_t bucket = BucketOf(face, counted, italic);
    if (const FontEntry* known = Look(bucket, face, counted, italic, outlineFirst)) {
        return known;
    }
    const std::scoped_lock lock(fontLock);
    const FontEntry* known = Look(bucket, face, counted, italic, outlineFirst);
    return known ? known : MakeEntry({std::string(face), counted, italic, outlineFirst}, bucket);
}

std::vector<InstalledFont> FontStore::Installed(const std::string& family) {
    const std::scoped_lock lock(fontLock);
    queries.fetch_add(1, std::memory_order_relaxed);
    return Held().Query.Installed(family);
}

void FontStore::SetFolders(const std::vector<std::string>& folders) {
    const std::scoped_lock lock(fontLock);
    Forget();
    Held().Query.SetFolders(folders);
}

void FontStore::UseSystemFonts() {
    const std::scoped_lock lock(fontLock);
    Forget();
    Held().Query.UseSystem();
}

FontCosts FontStore::Costs() noexcept {
    return {fileOpens.load(std::memory_order_relaxed), queries.load(std::memory_order_relaxed)};
}

std::mutex& FontStore::Lock() noexcept {
    return fontLock;
}

}  // namespace PLATFORM
