// SPDX-License-Identifier: MIT
// Writes one record to a settings file, reads it back and shows it.

// [readme]
#include <marlin/color/rgb_color.h>
#include <marlin/records/line_info.h>
#include <marlin/settings/ini_file.h>

#include <cstdio>

int main() {
    LineInfo coast;
    coast.SetWidth(0.35F);
    coast.SetColor(RGBColor(0, 64, 128));
    coast.SetStyle(LineInfo::DASHED_LINE);

    IniFile file;
    coast.Write(file["Coastline"]);
    if (const ErrorString error = file.Save("chart.ini"); !error.Empty()) {
        std::puts(error.Text().c_str());
        return 1;
    }

    const IniFile stored("chart.ini");
    LineInfo line;
    line.Read(stored["coastline"]);  // names ignore case
    std::printf("%s, %.2f mm wide, color %06lX\n", line.StyleStr().c_str(),
                static_cast<double>(line.Width()), line.Color());
    return line == coast ? 0 : 1;
}
// [/readme]
