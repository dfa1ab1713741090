// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/settings_reader.h>
#include <marlin/core/number_text.h>
#include <marlin/resources/texts.h>

namespace MARLINSUITE::detail {

ErrorString SettingsOutcome::Result(const std::string& path) const {
    std::string message;
    switch (Kind) {
        case DONE:
            return {};
        case BAD_HEADER:
            message.append(Message(MESSAGE::INVALID_SECTION));
            AppendNumber(message, Line);
            break;
        case DUPLICATE_SECTION:
            message.append(Message(MESSAGE::DUPLICATE_SECTION)).append(Name);
            message.append(Message(MESSAGE::SECTION_FOUND));
            break;
        case READ_ERROR:
            message.append(Message(MESSAGE::ERROR_OPENING_SETTINGS)).append(path);
            message.append(Message(MESSAGE::FOR_READING));
            break;
    }
    if (Kind == READ_ERROR) {
        return ErrorString(message).SetCause(SystemReason(path, Error));
    }
    std::string cause = path + ":";
    AppendNumber(cause, Line);
    return ErrorString(message).SetCause(cause + ": " + message);
}

}  // namespace MARLINSUITE::detail
