// SPDX-License-Identifier: MIT
// What a host pays in memory for reading a settings file: the growth of its peak, beside the
// size of the file and what the keys hold.
#include <marlin/settings/ini_file.h>

#include <bench/inputs.h>

namespace {

// In bytes.
long PeakMemory() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmHWM:")) {
            return std::atol(line.c_str() + line.find_first_of("0123456789")) * 1024;
        }
    }
    BENCH::Require(false, "reading VmHWM");
    return 0;
}

// The input is made by a process of its own, so that its memory does not count.
void MakeInput(const char* path) {
    std::ofstream file(path, std::ios::binary);
    file << BENCH::SettingsText({100'000, 6});
    BENCH::Require(file.flush().good(), "writing the input");
}

int Report(const char* path) {
    constexpr double mebibyte = 1024.0 * 1024.0;
    const long before = PeakMemory();
    IniFile settings;
    BENCH::Require(settings.Open(std::string(path)).Empty(), "IniFile::Open");
    const long growth = PeakMemory() - before;
    std::size_t texts = 0;
    std::size_t keys = 0;
    for (const Section& section : settings.Sections()) {
        for (const SectionKey& key : section.Keys()) {
            texts += key.GetName()->size() + key.GetValue().size();
            ++keys;
        }
    }
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const auto size = static_cast<double>(file.tellg());
    const double most = 5.0 * size + static_cast<double>(texts);
    std::printf(
        "file %.1f MiB, names and values %.1f MiB, key objects %.1f MiB, peak grew by %.1f "
        "MiB; 5 files and the names and values: %.1f MiB: %s\n",
        size / mebibyte, static_cast<double>(texts) / mebibyte,
        static_cast<double>(keys * sizeof(SectionKey)) / mebibyte,
        static_cast<double>(growth) / mebibyte, most / mebibyte,
        static_cast<double>(growth) <= most ? "ok" : "over");
    return static_cast<double>(growth) <= most ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string_view(argv[1]) == "make") {
        MakeInput(argv[2]);
        return 0;
    }
    if (argc == 3 && std::string_view(argv[1]) == "read") {
        return Report(argv[2]);
    }
    std::fprintf(stderr, "usage: %s make|read FILE\n", argv[0]);
    return 2;
}
