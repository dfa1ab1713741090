// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <span>
#include <string_view>

namespace PLATFORM {

/// One text of a resource string table.
struct StringResource {
    unsigned int Id;
    std::string_view Text;
};

/// The texts of the library's own resources, which define it. Constant-initialised.
extern const std::span<const StringResource> DefaultStringTable;

/// The string table from which `CString::LoadString` takes its texts. It starts as that of the
/// library's own resources, before any code runs; another one may be handed over, in another
/// language for instance.
class MARLIN_API StringTable {
public:
    /// Makes `table` the current one; it must outlive every later look-up. An empty table
    /// brings back the library's own. Not to be called beside look-ups of other threads.
    static void Set(std::span<const StringResource> table) noexcept;
    /// The text of that number, or an empty one.
    [[nodiscard]] static std::string_view Text(unsigned int id) noexcept;
};

}  // namespace PLATFORM
