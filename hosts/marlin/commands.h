// SPDX-License-Identifier: MIT
#pragma once

#include "output.h"

#include <string>
#include <vector>

/// The commands. Each takes its arguments as they were typed, fills the output and gives the exit
/// code; what it refuses or cannot do stands on standard error, and then no file was changed.
namespace HOST {

struct GenerateArguments {
    std::vector<std::string> Range;  ///< Lowest and highest level, interval; or a table:
    std::string Table;
    bool Invert = false;
    bool SnapDxf = false;
    std::string OutFile;
};

/// Options that were not given are empty.
struct ContourArguments {
    std::string File;
    std::vector<std::string> Levels;
    std::string Color;
    std::string LineType;
    std::string Width;
    std::string Label;
};

int ListContours(const std::string& path, Output& output);
/// Becomes the contour editor; only returns where that cannot be started.
int EditContours(const std::string& path);
int GenerateContours(const GenerateArguments& arguments, Output& output);
int SetContours(const ContourArguments& arguments, Output& output);
int AddContours(const ContourArguments& arguments, Output& output);
int RemoveContours(const ContourArguments& arguments, Output& output);

int ConvertColors(const std::string& from, const std::string& to, Output& output);
int ShowColors(const std::string& path, Output& output);
int FindDxfColors(const std::vector<std::string>& colors, Output& output);

struct SettingArguments {
    std::string File;
    std::string Section;
    std::string Key;
    std::string Value;
};

int CheckSettings(const std::vector<std::string>& paths, Output& output);
int SealSettings(const std::string& path, const std::vector<std::string>& sections, Output& output);
int GetSetting(const SettingArguments& arguments, Output& output);
int SetSetting(const SettingArguments& arguments, Output& output);
int CompareSettings(const std::string& a, const std::string& b, Output& output);
int ShowSettings(const std::string& path, Output& output);

/// Each argument is a text with keywords, or a file.
int ScanKeywords(const std::vector<std::string>& arguments, Output& output);
int ListKeywords(Output& output);

int CheckFile(const std::string& path, Output& output);
int SealFile(const std::string& path, bool isForced, Output& output);

/// Options that were not given are empty.
struct TextArguments {
    std::string Font;
    std::string Size;
    bool IsBold = false;
    bool IsItalic = false;
    std::string Justification;
    std::string Rotation;
    std::string Wrap;
    std::string Presentation;  ///< This and what follows: of depth labels.
    std::string Placement;
    std::string Precision;
    std::vector<std::string> Texts;  ///< Or depths.
};

int MeasureTexts(const TextArguments& arguments, Output& output);
int MeasureDepths(const TextArguments& arguments, Output& output);
int ListFonts(Output& output);

}  // namespace HOST
