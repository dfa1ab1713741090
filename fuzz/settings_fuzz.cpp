// SPDX-License-Identifier: MIT
// Any bytes are read as a settings file without harm, and what was read is written in a form
// that reads back to the same sections, keys and texts.
#include "require.h"
#include <marlin/settings/ini_file.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

void RequireValidSections(const IniFile& file) {
    for (int i = 0; i < file.NumSections(); ++i) {
        Require(file[i].IsValid());
        Require(file.HasSection(file[i]));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    IniFile file;
    const ErrorString error = file.OpenText({reinterpret_cast<const char*>(data), size});
    RequireValidSections(file);
    if (!error.Empty() || file.Empty()) {
        return 0;
    }
    const std::string text = file.Text();
    IniFile again;
    Require(again.OpenText(text).Empty());
    Require(again.NumSections() == file.NumSections());
    IniFile third;
    Require(third.OpenText(again.Text()).Empty());
    Require(third.Text() == again.Text());
    return 0;
}
