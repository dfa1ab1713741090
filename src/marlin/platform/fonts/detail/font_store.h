// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/detail/font_face.h>
#include <marlin/platform/fonts/detail/font_query.h>

#include <atomic>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace PLATFORM::detail {

/// The one cache of fonts in the process. The framework's font calls and `FontCatalog` ask it for
/// faces; it asks `FontQuery` which file answers a wish, and opens the file's face. A wish is
/// looked up once, a file read once for all its faces.
///
/// Faces live for the process, so they stay readable while the cache changes; the cache itself is
/// guarded by one mutex, and so is every use of FreeType.
class FontStore {
public:
    /// Null when there is no such face that can be measured; the next call looks again.
    [[nodiscard]] static const FontFace* Find(FontWish wish);
    /// The face found and where it comes from. False, and the target unchanged, without one.
    [[nodiscard]] static bool Match(FontWish wish, FontMatch& match);
    /// The first font of each family, sorted.
    [[nodiscard]] static std::vector<InstalledFont> Families();

    /// From now on wishes are looked up anew, in these folders or, for none, in the system.
    static void SetFolders(const std::vector<std::string>& folders);
    /// Grows with that, for those who keep what they have found.
    [[nodiscard]] static std::size_t Edition() noexcept {
        return m_Edition.load(std::memory_order_acquire);
    }

    [[nodiscard]] static FontCosts Costs() noexcept;
    /// To be held while FreeType is used.
    [[nodiscard]] static std::mutex& Lock() noexcept;

private:
    static constinit std::atomic<std::size_t> m_Edition;
};

}  // namespace PLATFORM::detail
