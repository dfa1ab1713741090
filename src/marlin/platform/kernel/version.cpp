// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/version.h>

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace {

unsigned long PlatformId() noexcept {
    const char* asked = std::getenv("MARLIN_PLATFORM_ID");
    const std::string_view text = asked ? asked : "";
    unsigned int id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? id : VER_PLATFORM_WIN32_NT;
}

}  // namespace

int GetVersionExA(OSVERSIONINFOA* information) noexcept {
    if (!information || information->dwOSVersionInfoSize != sizeof(OSVERSIONINFOA)) {
        return 0;
    }
    *information = OSVERSIONINFOA();
    information->dwMajorVersion = 5;
    information->dwMinorVersion = 1;
    information->dwPlatformId = PlatformId();
    return 1;
}
