// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/kernel/extension_module.h>

namespace MARLINSUITE {

/// The version of this library, 4.1.0.7, packed one byte each.
inline constexpr unsigned int LibraryVersion = 0x04010007;

/// The steps that a start-up has taken; each needs the one before it.
struct StartUpSteps {
    bool VersionAccepted = false;
    bool ModuleRegistered = false;
    bool ResourcesLoaded = false;

    [[nodiscard]] constexpr bool Done() const noexcept { return ResourcesLoaded; }
    friend bool operator==(const StartUpSteps&, const StartUpSteps&) noexcept = default;
};

/// Starts the library under a version: the version check, the registration as an extension
/// module and the loading of its resources, in this order, up to the first that refuses. It
/// runs by itself once when the library is loaded, before the hosts' static objects are made.
/// A refused start leaves the library not loaded.
MARLIN_API StartUpSteps StartUp(unsigned int version = LibraryVersion) noexcept;

/// True when the library is started and not shut down; a host may ask before its first use.
[[nodiscard]] MARLIN_API bool IsLoaded() noexcept;

/// Ends the registration; runs by itself when the library is unloaded.
MARLIN_API void ShutDown() noexcept;

/// Hands the library's texts and dialog templates over to the platform and makes the texts the
/// current ones. They are linked into the library, so no file is read; false, and nothing
/// changed, without both modules.
MARLIN_API bool LoadDLLResourceDLL(HINSTANCE library, HINSTANCE registered) noexcept;

}  // namespace MARLINSUITE
