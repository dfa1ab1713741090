// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// Names a module that is loaded into the process; null names none.
using HINSTANCE = struct HINSTANCE__*;
/// The same, as older calls name it.
using HMODULE = HINSTANCE;

/// The framework's record of an extension module; at first empty, not registered.
struct AFX_EXTENSION_MODULE {
    int bInitialized = 0;         ///< 1 while registered, else 0
    HMODULE hModule = nullptr;    ///< the module itself
    HMODULE hResource = nullptr;  ///< the module that holds its resources
};

/// Registers a module, whose resources are its own. Returns 1, also for a module that is
/// registered already; 0, and nothing recorded, for null.
MARLIN_API int AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module) noexcept;
/// Ends the registration.
MARLIN_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, int all = 0) noexcept;

namespace PLATFORM {

/// The module of this library.
[[nodiscard]] HINSTANCE ThisModule() noexcept;

/// The folder of the file that this library was loaded from, with links followed and without
/// an ending "/"; empty when the system does not know it.
[[nodiscard]] std::string ThisModuleFolder();

}  // namespace PLATFORM
