// SPDX-License-Identifier: MIT
#include <marlin/platform/text/string_table.h>
#include <marlin/resources/messages.h>

namespace MARLINSUITE {

std::string_view Message(MESSAGE message) noexcept {
    return PLATFORM::StringTable::Text(static_cast<unsigned int>(message));
}

}  // namespace MARLINSUITE
