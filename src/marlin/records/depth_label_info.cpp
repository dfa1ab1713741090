// SPDX-License-Identifier: MIT
#include <marlin/base/format_string.h>
#include <marlin/base/text_functions.h>
#include <marlin/core/number_text.h>
#include <marlin/records/depth_label_info.h>

namespace {

/// The numbers of a list from a position on, one after the other.
class NumberItems {
public:
    NumberItems(const FormatString& items, int first) noexcept : m_Items(items), m_Next(first) {}

    void Read(int& value) noexcept {
        if (m_Next < m_Items.Size()) {
            value = atoi(m_Items[m_Next++]);
        }
    }
    void Read(bool& value) noexcept {
        int number = value ? 1 : 0;
        Read(number);
        value = number != 0;
    }
    // A number from 0 to the last value; any other leaves the target.
    template <class Enumeration>
    void Read(Enumeration& value, Enumeration last) noexcept {
        int number = value;
        Read(number);
        if (number >= 0 && number <= last) {
            value = static_cast<Enumeration>(number);
        }
    }

private:
    const FormatString& m_Items;
    int m_Next;
};

}  // namespace

std::string DepthLabelInfo::ToString() const {
    std::string text = TextInfo::ToString();
    for (const int item : {m_Precision, int{m_Presentation}, int{m_Placement}}) {
        text += ',';
        MARLINSUITE::AppendNumber(text, item);
    }
    for (const bool item :
         {m_UseTextColor, m_AutoTextRotation, m_UnderlineDryingHeights, m_NoDecimalZeros}) {
        text += ',';
        MARLINSUITE::AppendNumber(text, item);
    }
    return text;
}

void DepthLabelInfo::FromString(const std::string& text) {
    *this = DepthLabelInfo();
    const FormatString items(text, ',');
    NumberItems numbers(items, TextInfo::FromString(items));
    numbers.Read(m_Precision);
    numbers.Read(m_Presentation, PRESENTATION_4);
    numbers.Read(m_Placement, PLACEMENT_2);
    numbers.Read(m_UseTextColor);
    numbers.Read(m_AutoTextRotation);
    numbers.Read(m_UnderlineDryingHeights);
    numbers.Read(m_NoDecimalZeros);
}
