// SPDX-License-Identifier: MIT
#include <marlin/base/start_up.h>
#include <marlin/base/version_gate.h>
#include <marlin/core/detail/load_order.h>
#include <marlin/resources/dialogs.h>
#include <marlin/resources/texts.h>

namespace MARLINSUITE {

namespace {

static_assert(LibraryVersion == MARLIN_VERSION_WORD, "the version that is built");

constinit AFX_EXTENSION_MODULE extension;
constinit StartUpSteps steps;

// Starts the library when it is loaded, and shuts it down when it is unloaded.
struct Loading {
    Loading() noexcept { StartUp(); }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;
    ~Loading() { ShutDown(); }
};

[[gnu::init_priority(MARLINSUITE::detail::LoadStartUp)]] const Loading loading;

}  // namespace

StartUpSteps StartUp(unsigned int version) noexcept {
    ShutDown();
    steps.VersionAccepted = CheckDllVersion(version, "start_up.cpp", __DATE__ " " __TIME__);
    const HINSTANCE self = PLATFORM::ThisModule();
    steps.ModuleRegistered = steps.VersionAccepted && AfxInitExtensionModule(extension, self) != 0;
    steps.ResourcesLoaded = steps.ModuleRegistered && LoadDLLResourceDLL(self, extension.hModule);
    return steps;
}

bool IsLoaded() noexcept {
    return steps.Done();
}

void ShutDown() noexcept {
    AfxTermExtensionModule(extension);
    steps = {};
}

bool LoadDLLResourceDLL(HINSTANCE library, HINSTANCE registered) noexcept {
    if (!library || !registered) {
        return false;
    }
    LoadTexts();
    LoadDialogs();
    return true;
}

}  // namespace MARLINSUITE
