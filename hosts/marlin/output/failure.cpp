// SPDX-License-Identifier: MIT
#include "failure.h"

namespace HOST {

std::string ReasonOf(const ErrorString& failure) {
    return failure.Cause().empty() ? failure.Text() : failure.Cause();
}

void Fail(const std::string& message) {
    throw Failure(UNUSABLE, message);
}

void FailOption(std::string_view option, const std::string& value, std::string_view forms) {
    Fail(std::string(option) + ": \"" + value + "\" is not " + std::string(forms));
}

void Refuse(const std::string& message) {
    throw Failure(FOUND, message);
}

void Require(const ErrorString& outcome) {
    if (!outcome.Empty()) {
        Fail(ReasonOf(outcome));
    }
}

}  // namespace HOST
