// SPDX-License-Identifier: MIT
// The platform without the suite: it links, and works with no resources until some are handed over.
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/text/string_table.h>
#include <marlin/platform/windowing/dialog_template.h>

#include <cstdio>

int main() {
    static constexpr PLATFORM::StringResource texts[] = {{7, "seven"}};
    static constexpr PLATFORM::DialogTemplate templates[] = {{8, "eight", 1, 1, "", 8, {}}};
    CString text("before");
    const bool empty = !text.LoadString(7) && text.IsEmpty() && !PLATFORM::FindDialogTemplate(8);
    PLATFORM::StringTable::SetOwn(texts);
    PLATFORM::SetDialogTemplates(templates);
    const bool handedOver =
        text.LoadString(7) && text == "seven" && PLATFORM::FindDialogTemplate(8) == templates;
    std::printf("%s\n", empty && handedOver ? "works" : "fails");
    return empty && handedOver ? 0 : 1;
}
