// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include <marlin/platform/export.h>

namespace PLATFORM {

/// One text of a resource string table.
struct StringResource {
    unsigned int Id;
    std::string_view Text;
};

/// The string table from which `CString::LoadString` takes its texts. The platform owns none
/// of them: the resources hand theirs over, once, when they are loaded.
class MARLIN_API StringTable {
public:
    /// Makes `table` the current one; it must outlive every later look-up.
    static void Set(std::span<const StringResource> table) noexcept;
    /// The text of that number, or an empty one.
    [[nodiscard]] static std::string_view Text(unsigned int id) noexcept;
};

}  // namespace PLATFORM
