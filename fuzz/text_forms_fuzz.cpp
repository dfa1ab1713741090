// SPDX-License-Identifier: MIT
// Any bytes are read as the one-line form of a record without harm, and what a record writes it
// reads back.
#include "require.h"
#include <marlin/records/dxf_info.h>
#include <marlin/records/line_info.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

template <class Record>
void RequireStable(const std::string& text) {
    Record record;
    record.FromString(text);
    const std::string written = record.ToString();
    Record again;
    again.FromString(written);
    Require(again.ToString() == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    RequireStable<LineInfo>(text);
    RequireStable<DXFInfo>(text);
    return 0;
}
