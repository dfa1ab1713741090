// SPDX-License-Identifier: MIT
#include "settings.h"

#include "families.h"

namespace HOST {

void AddSettings(Family& program) {
    Family settings = program.AddFamily("settings", "Settings files");
    AddCheckSettings(settings);
    AddSealSettings(settings);
    AddOneSetting(settings);
    AddShowSettings(settings);
    AddDiffSettings(settings);
}

}  // namespace HOST
