// SPDX-License-Identifier: MIT
#include "files.h"

#include <marlin/base/files/file_replacement.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace HOST {

namespace {

ErrorString ReadStandardInput(std::string& text) {
    constexpr std::size_t step = 64 * 1024;
    std::size_t count = step;
    while (count == step && text.size() <= LargestTextFile) {
        text.resize(text.size() + step);
        errno = 0;
        count = std::fread(text.data() + text.size() - step, 1, step, stdin);
        text.resize(text.size() - step + count);
    }
    if (std::ferror(stdin) != 0) {
        return ErrorString(MARLINSUITE::SystemReason("standard input", errno));
    }
    return text.size() <= LargestTextFile
               ? ErrorString()
               : ErrorString(std::string("standard input: larger than 256 MiB"));
}

}  // namespace

bool IsStandard(const std::string& path) {
    return path == "-";
}

ErrorString ReadText(const std::string& path, std::string& text) {
    return IsStandard(path) ? ReadStandardInput(text)
                            : MARLINSUITE::ReadFile(path, text, LargestTextFile);
}

void WriteFile(const std::string& path, const std::string& bytes, Output& output) {
    if (IsStandard(path)) {
        output.Text += bytes;
        output.IsFile = true;
    } else {
        Require(MARLINSUITE::ReplaceFile(path, bytes));
    }
}

void LockForChange(const std::string& path, PLATFORM::FileLock& lock) {
    constexpr unsigned int tenSeconds = 10'000;
    if (!IsStandard(path) && lock.Take(path, tenSeconds) != 0) {
        Fail(path + ": another program has been changing it for 10 s; nothing written");
    }
}

void RequireOther(const std::string& input, const std::string& output) {
    const std::filesystem::path from = IsStandard(input) ? "/dev/stdin" : input;
    const std::filesystem::path to = IsStandard(output) ? "/dev/stdout" : output;
    std::error_code unknown;  // a file that is not there is no other file either
    if (std::filesystem::is_regular_file(from, unknown) &&
        std::filesystem::equivalent(from, to, unknown)) {
        Fail(output + ": the output is the input " + input + "; nothing written");
    }
}

}  // namespace HOST
