// SPDX-License-Identifier: MIT
#include "output/json.h"
#include "text.h"
#include <marlin/platform/fonts/font_catalog.h>
#include <marlin/platform/text/code_page.h>

namespace HOST {

namespace {

// A style names its font in single-byte characters, so no other family can be asked for.
bool CanBeNamed(const std::string& family) {
    return PLATFORM::ToUtf8(PLATFORM::FromUtf8(family)) == family;
}

struct ListFonts {
    bool IsJson = false;

    void Declare(Options& options) { options.Json(IsJson); }

    int Run(Output& output) const {
        std::vector<std::string> families = PLATFORM::FontCatalog::Families();
        std::erase_if(families, [](const std::string& family) { return !CanBeNamed(family); });
        if (IsJson) {
            AppendJson(families, output);
            return DONE;
        }
        for (const std::string& family : families) {
            output.Text += Printable(family) + "\n";
        }
        return DONE;
    }
};

}  // namespace

void AddListFonts(Family& text) {
    text.Add<ListFonts>("fonts", "List the fonts that can be measured");
}

}  // namespace HOST
