// SPDX-License-Identifier: MIT
#include <marlin/records/depth_label_info.h>
#include <marlin/records/detail/style_items.h>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

template <class Items>
void DepthLabelInfo::ForEachItem(Items& items) {
    items({"", 10, "decimals of the depths"}, m_Precision);
    items({"", 11, "code of the decimals' layout"}, Choice(m_Presentation, PRESENTATION_4));
    items({"", 12, "code of the point at the position"}, Choice(m_Placement, PLACEMENT_2));
    items({"", 13, "in the color of the text"}, m_UseTextColor);
    items({"", 14, "turned automatically"}, m_AutoTextRotation);
    items({"", 15, "drying heights are underlined"}, m_UnderlineDryingHeights);
    items({"", 16, "zeros among the decimals are left out"}, m_NoDecimalZeros);
}

RecordFields DepthLabelInfo::Fields() const {
    RecordFields fields = TextInfo::Fields();
    StyleLister lister(fields);
    DepthLabelInfo(*this).ForEachItem(lister);
    return fields;
}

std::string DepthLabelInfo::ToString() const {
    return JoinItems(Fields());
}

void DepthLabelInfo::FromString(const std::string& text) {
    *this = DepthLabelInfo();
    const FormatString items(text, ',');
    // The text style takes one item less of the older layout, so the rest begins where it ends.
    StyleReader reader(items, TextInfo::FromString(items), items.Size());
    ForEachItem(reader);
}
