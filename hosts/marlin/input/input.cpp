// SPDX-License-Identifier: MIT
#include "input.h"

#include "output/failure.h"
#include <marlin/platform/text/code_page.h>

namespace HOST {

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
