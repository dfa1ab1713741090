// SPDX-License-Identifier: MIT
// Usage: unload PLUGIN
// Loads a plugin that uses the library on a thread of its own, closes it, and fails while the
// plugin or the library is still mapped: a host must be able to put another version in its place.
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>

#include <dlfcn.h>

namespace {

// A line of the memory map that has the library or the plugin, or an empty text.
std::string MappedLine() {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find("libmarlinshared") != std::string::npos ||
            line.find("unload_plugin") != std::string::npos) {
            return line;
        }
    }
    return {};
}

int Fail(const char* what, const std::string& detail) {
    std::printf("%s: %s\n", what, detail.c_str());
    return 1;
}

}  // namespace

int main(int count, char** arguments) {
    for (int round = 0; round < 2; ++round) {
        void* const plugin = count == 2 ? ::dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
        if (!plugin) {
            return Fail("not loaded", count == 2 ? ::dlerror() : "usage: unload PLUGIN");
        }
        auto* const use = reinterpret_cast<int (*)()>(::dlsym(plugin, "UseLibrary"));
        if (!use || MappedLine().empty()) {
            return Fail("not usable", arguments[1]);
        }
        int result = -1;
        std::thread([use, &result] { result = use(); }).join();
        if (result != 0) {
            return Fail("wrong results", std::to_string(result));
        }
        if (::dlclose(plugin) != 0 || !MappedLine().empty()) {
            return Fail("still mapped", MappedLine());
        }
    }
    return 0;
}
