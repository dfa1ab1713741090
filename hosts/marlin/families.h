// SPDX-License-Identifier: MIT
#pragma once

#include "command.h"

/// The families of commands, and the commands of those that have a folder. Each is declared where
/// it is implemented, in a file or a folder of its name, with the options of every command beside
/// its work.
namespace HOST {

void AddFamilies(Family& program);

void AddColors(Family& program);
void AddKeywords(Family& program);
void AddFile(Family& program);

void AddListContours(Family& contours);
void AddEditContours(Family& contours);
void AddGenerateContours(Family& contours);
/// "set", "add" and "remove".
void AddChangeContours(Family& contours);

void AddCheckSettings(Family& settings);
void AddSealSettings(Family& settings);
/// "get" and "set".
void AddOneSetting(Family& settings);
void AddShowSettings(Family& settings);
void AddDiffSettings(Family& settings);

void AddMeasureTexts(Family& text);
void AddMeasureDepths(Family& text);
void AddListFonts(Family& text);

}  // namespace HOST
