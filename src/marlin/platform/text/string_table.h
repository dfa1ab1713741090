// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <span>
#include <string_view>

namespace PLATFORM {

/// One text of a resource string table.
struct StringResource {
    unsigned int Id;        ///< Its number, as `CString::LoadString` takes it.
    std::string_view Text;  ///< UTF-8; lives as long as the table.
};

/// The string table from which `CString::LoadString` takes its texts: the one that the library's
/// resources hand over when it is loaded, or another one in its place, in another language for
/// instance. A table must outlive every later look-up. Not to be changed beside look-ups of other
/// threads.
class MARLIN_API StringTable {
public:
    /// Makes `table` the library's own and the current one.
    static void SetOwn(std::span<const StringResource> table) noexcept;
    /// Makes `table` the current one. An empty table brings back the library's own.
    static void Set(std::span<const StringResource> table) noexcept;
    /// The text of that number, or an empty one.
    [[nodiscard]] static std::string_view Text(unsigned int id) noexcept;
};

}  // namespace PLATFORM
