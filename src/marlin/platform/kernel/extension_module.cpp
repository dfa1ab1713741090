// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/extension_module.h>

#include <filesystem>
#include <system_error>

#include <dlfcn.h>

namespace {

// Any address of this library will do.
constinit const char ownAddress = 0;

Dl_info OwnInfo() noexcept {
    Dl_info info{};
    return ::dladdr(&ownAddress, &info) != 0 ? info : Dl_info{};
}

}  // namespace

int AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module) noexcept {
    if (!module) {
        return 0;
    }
    if (state.bInitialized == 0) {
        state = {1, module, module};
    }
    return 1;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, int) noexcept {
    state = {};
}

namespace PLATFORM {

HINSTANCE ThisModule() noexcept {
    return static_cast<HINSTANCE>(OwnInfo().dli_fbase);
}

std::string ThisModuleFolder() {
    const Dl_info info = OwnInfo();
    std::error_code error;
    const auto file = std::filesystem::canonical(info.dli_fname ? info.dli_fname : "", error);
    return error ? std::string() : file.parent_path().string();
}

}  // namespace PLATFORM
