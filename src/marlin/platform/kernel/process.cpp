// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/process.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace PLATFORM {

bool IsTerminal(std::FILE* stream) noexcept {
    return ::isatty(::fileno(stream)) != 0;
}

std::string ProgramFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

bool IsProgram(const std::string& path) noexcept {
    return ::access(path.c_str(), X_OK) == 0;
}

// The system takes pointers to characters that it may change, hence the copies.
int RunInstead(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    ::execvp(program.c_str(), pointers.data());
    return errno;
}

}  // namespace PLATFORM
