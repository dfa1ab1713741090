// SPDX-License-Identifier: MIT
#include <marlin/core/ascii.h>
#include <marlin/records/record_field.h>

namespace MARLINSUITE {

int ValueOfText(std::span<const NamedValue> values, std::string_view text, int otherwise) noexcept {
    for (const NamedValue& named : values) {
        if (EqualIgnoringCase(text, named.Text)) {
            return named.Value;
        }
    }
    return otherwise;
}

std::string RecordKey::NameIn(const std::string& start) const {
    const bool isRenamed = !start.empty() && !std::string_view(PrefixedName).empty();
    return start + (isRenamed ? PrefixedName : Name);
}

std::string RecordKey::MeaningOf(double value) const {
    // Only integers have bits, and a double holds each of them.
    const unsigned int bits = AreBits ? static_cast<unsigned int>(static_cast<int>(value)) : 0;
    std::string meaning;
    for (const NamedValue& named : Values) {
        if (value == static_cast<double>(named.Value)) {
            return named.Meaning;
        }
        if ((bits & static_cast<unsigned int>(named.Value)) != 0) {
            meaning += (meaning.empty() ? "" : ", ") + std::string(named.Meaning);
        }
    }
    return meaning.empty() ? Meaning : meaning;
}

}  // namespace MARLINSUITE
