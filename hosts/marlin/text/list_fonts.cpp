// SPDX-License-Identifier: MIT
#include "families.h"
#include "output/json.h"
#include <marlin/platform/fonts/font_catalog.h>

namespace HOST {

namespace {

struct ListFonts {
    bool IsJson = false;

    void Declare(Options& options) { options.Json(IsJson); }

    int Run(Output& output) const {
        const std::vector<std::string> families = PLATFORM::FontCatalog::Families();
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
