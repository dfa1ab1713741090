// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/fonts/detail/font_face.h>
#include <marlin/platform/fonts/detail/font_query.h>

#include <atomic>
#include <cstddef>
#include <mutex>
#include <string_view>

namespace PLATFORM {

/// The face that a wish has found. Lives for the process.
struct FontEntry {
    FontWish Wish;
    FontMatch Match;
    const FontFace* Face = nullptr;
    const FontEntry* Next = nullptr;
};

/// The fonts that the process has found so far. Looking one up again takes no lock, touches no
/// file and asks nobody; finding a new one does, behind the one lock of the fonts.
class FontStore {
public:
    /// Null when there is no such face that can be measured; the next call looks again.
    [[nodiscard]] static const FontEntry* Find(std::string_view face, int weight, bool italic,
                                               bool outlineFirst);
    [[nodiscard]] static std::vector<InstalledFont> Installed(const std::string& family);
    static void SetFolders(const std::vector<std::string>& folders);
    static void UseSystemFonts();
    [[nodiscard]] static FontCosts Costs() noexcept;
    /// Another number once the fonts to choose from are others; what was found before is then
    /// asked for anew.
    [[nodiscard]] static std::size_t Edition() noexcept {
        return m_Edition.load(std::memory_order_acquire);
    }

    /// Held while glyphs are read.
    [[nodiscard]] static std::mutex& Lock() noexcept;

private:
    static void Forget() noexcept;

    static constinit std::atomic<std::size_t> m_Edition;
};

}  // namespace PLATFORM
