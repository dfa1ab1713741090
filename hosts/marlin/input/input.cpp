// SPDX-License-Identifier: MIT
#include "input.h"

#include "output/failure.h"
#include "output/printable.h"
#include <marlin/platform/text/code_page.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace HOST {

namespace {

struct Closer {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};

ErrorString SystemFailure(const std::string& path, int error) {
    return ErrorString(path + ": " + std::generic_category().message(error));
}

ErrorString TooLarge(const std::string& path, std::size_t limit) {
    constexpr std::size_t mebibyte = 1024 * 1024;
    return ErrorString(path + ": larger than " + NumberText(static_cast<int>(limit / mebibyte)) +
                       " MiB");
}

}  // namespace

ErrorString ReadInput(const std::string& path, std::size_t limit, std::string& bytes) {
    constexpr std::size_t firstStep = 64 * 1024;
    std::error_code unknown;  // a device, which ends at the limit
    if (const auto size = std::filesystem::file_size(path, unknown); !unknown && size > limit) {
        return TooLarge(path, limit);
    }
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
    if (!file) {
        return SystemFailure(path, errno);
    }
    std::string read;
    while (std::feof(file.get()) == 0) {
        const std::size_t size = read.size();
        const std::size_t step = std::max(firstStep, size / 2);
        read.resize(size + step);
        errno = 0;
        read.resize(size + std::fread(read.data() + size, 1, step, file.get()));
        if (std::ferror(file.get()) != 0) {
            return SystemFailure(path, errno);
        }
        if (read.size() > limit) {
            return TooLarge(path, limit);
        }
    }
    bytes = std::move(read);
    return {};
}

std::string TextOfArgument(const std::string& argument) {
    if (!PLATFORM::IsUtf8(argument)) {
        return argument;
    }
    std::string text = PLATFORM::FromUtf8(argument);
    if (PLATFORM::ToUtf8(text) != argument) {
        Fail("\"" + argument + "\" holds a character that Windows-1252 lacks");
    }
    return text;
}

}  // namespace HOST
