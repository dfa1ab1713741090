// SPDX-License-Identifier: MIT
#include <marlin/core/detail/process_object.h>
#include <marlin/platform/fonts/detail/font_store.h>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace PLATFORM::detail {

namespace {

struct FontFile {
    FontBytes Bytes;
    std::map<int, std::unique_ptr<const FontFace>> Faces;
};

struct FoundFont {
    FontMatch Match;
    const FontFace* Face = nullptr;
};

class Cache {
public:
    // FreeType goes after the faces that it opened.
    Cache() noexcept { static_cast<void>(FreeType()); }

    std::mutex Lock;
    FontQuery Query;
    FontCosts Costs;

    // Null without a face that can be measured. Failures are not kept: the font may come.
    const FoundFont* Find(FontWish&& wish);
    void Forget();

private:
    const FontFace* FaceOf(const FontMatch& match);

    std::map<FontWish, FoundFont> m_Found;
    std::map<std::string, FontFile> m_Files;
    // Fonts made from them still point to their faces.
    std::vector<std::map<std::string, FontFile>> m_Retired;
};

const FontFace* Cache::FaceOf(const FontMatch& match) {
    auto file = m_Files.find(match.Path);
    if (file != m_Files.end() && file->second.Faces.contains(match.Index)) {
        return file->second.Faces[match.Index].get();
    }
    FontBytes bytes;
    if (file != m_Files.end()) {
        bytes = file->second.Bytes;
    } else {
        ++Costs.FileOpens;
        bytes = ReadFontFile(match.Path);
    }
    std::unique_ptr<const FontFace> face = bytes ? FontFace::Open(bytes, match.Index) : nullptr;
    if (!face) {
        return nullptr;
    }
    FontFile& kept = m_Files[match.Path];
    kept.Bytes = std::move(bytes);
    return (kept.Faces[match.Index] = std::move(face)).get();
}

const FoundFont* Cache::Find(FontWish&& wish) {
    wish.Weight = wish.Weight <= 0 ? 400 : std::min(wish.Weight, 1000);
    if (const auto known = m_Found.find(wish); known != m_Found.end()) {
        return &known->second;
    }
    ++Costs.Queries;
    bool outline = false;
    std::optional<FontMatch> match = Query.Match(wish, outline);
    if ((!match || match->Substituted) && Query.Refresh()) {
        match = Query.Match(wish, outline);  // the font may have come
    }
    const FontFace* face = match && outline ? FaceOf(*match) : nullptr;
    if (!face) {
        static_cast<void>(Query.Refresh());
        return nullptr;
    }
    return &m_Found.try_emplace(std::move(wish), FoundFont{std::move(*match), face}).first->second;
}

void Cache::Forget() {
    m_Found.clear();
    m_Retired.push_back(std::move(m_Files));
    m_Files.clear();
}

Cache& TheCache() {
    return MARLINSUITE::detail::ProcessObject<Cache>();
}

}  // namespace

constinit std::atomic<std::size_t> FontStore::m_Edition{0};

const FontFace* FontStore::Find(FontWish wish) {
    const std::scoped_lock lock(Lock());
    const FoundFont* found = TheCache().Find(std::move(wish));
    return found ? found->Face : nullptr;
}

bool FontStore::Match(FontWish wish, FontMatch& match) {
    const std::scoped_lock lock(Lock());
    const FoundFont* found = TheCache().Find(std::move(wish));
    if (found) {
        match = found->Match;
    }
    return found != nullptr;
}

std::vector<InstalledFont> FontStore::Families() {
    const std::scoped_lock lock(Lock());
    ++TheCache().Costs.Queries;
    static_cast<void>(TheCache().Query.Refresh());
    return TheCache().Query.Families();
}

void FontStore::SetFolders(const std::vector<std::string>& folders) {
    const std::scoped_lock lock(Lock());
    TheCache().Forget();
    TheCache().Query.SetFolders(folders);
    m_Edition.fetch_add(1, std::memory_order_release);
}

FontCosts FontStore::Costs() noexcept {
    const std::scoped_lock lock(Lock());
    return TheCache().Costs;
}

std::mutex& FontStore::Lock() noexcept {
    return TheCache().Lock;
}

}  // namespace PLATFORM::detail
