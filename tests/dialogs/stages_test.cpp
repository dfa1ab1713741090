// SPDX-License-Identifier: MIT
#include "stage.h"

std::vector<StageKind> StageKinds() {
    return {{"Headless", [] { return std::make_unique<HeadlessStage>(); }}};
}
