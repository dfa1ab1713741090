// SPDX-License-Identifier: MIT
// Writes the pictures of the documentation as SVG into a folder.
#include "pictures.h"
#include "text_drawing.h"
#include <marlin/base/files/file_replacement.h>
#include <marlin/platform/fonts/font_catalog.h>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <utility>

namespace {

void WriteAll(const std::string& folder) {
    PLATFORM::FontMatch face;
    if (!PLATFORM::FontCatalog::Find(PICTURES::FaceName, 400, false, face) || face.Substituted) {
        throw std::runtime_error(std::string("the font ") + PICTURES::FaceName + " is missing");
    }
    const std::pair<const char*, std::string (*)()> pictures[] = {
        {"justifications.svg", PICTURES::DrawJustifications},
        {"wrapped_text.svg", PICTURES::DrawWrappedText},
        {"depth_labels.svg", PICTURES::DrawDepthLabels},
    };
    for (const auto& [name, draw] : pictures) {
        const ErrorString error = MARLINSUITE::ReplaceFile(folder + "/" + name, draw());
        if (!error.Empty()) {
            throw std::runtime_error(error.Text());
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        static_cast<void>(std::fputs("usage: pictures FOLDER\n", stderr));
        return 2;
    }
    try {
        WriteAll(argv[1]);
        return 0;
    } catch (const std::exception& exception) {
        static_cast<void>(std::fprintf(stderr, "pictures: %s\n", exception.what()));
        return 1;
    }
}
