// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

/// What all contestants of a job are given. Everything is the same in every run.
namespace BENCH {

/// Ends the program when a contestant did not do its work, so that no failure is timed.
inline void Require(bool done, const char* what) {
    if (!done) {
        std::fprintf(stderr, "failed: %s\n", what);
        std::exit(1);
    }
}

/// A file in memory, removed with its owner.
class RamFile {
public:
    explicit RamFile(std::string_view name)
        : m_Path("/dev/shm/marlin-bench-" + std::to_string(::getpid()) + "-" + std::string(name)) {}
    RamFile(std::string_view name, std::string_view bytes) : RamFile(name) {
        std::ofstream file(m_Path, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        Require(file.flush().good(), "writing the input");
    }
    RamFile(const RamFile&) = delete;
    RamFile& operator=(const RamFile&) = delete;
    ~RamFile() { std::remove(m_Path.c_str()); }

    [[nodiscard]] const std::string& Path() const noexcept { return m_Path; }

private:
    std::string m_Path;
};

/// Numbers that look random: SplitMix64.
class Numbers {
public:
    [[nodiscard]] std::uint64_t Next() noexcept {
        m_State += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_State;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }
    /// In [0, 1).
    [[nodiscard]] double Fraction() noexcept { return static_cast<double>(Next() >> 11) * 0x1p-53; }

private:
    std::uint64_t m_State = 1;
};

/// The shape of a settings file.
struct Shape {
    int Sections = 0;
    int Keys = 0;
    bool OwnNames = false;  ///< No two sections share the name of a key.

    [[nodiscard]] std::string Text() const {
        return std::to_string(Sections) + "x" + std::to_string(Keys) +
               (OwnNames ? "_own_names" : "");
    }
};

inline constexpr std::array<std::string_view, 25> KeyNames = {
    "Enable",    "LineStyle",    "LineWidth", "Color",         "DxfColor",
    "FaceName",  "TextHeight",   "Bold",      "Italic",        "Precision",
    "Level",     "Annotate",     "XInterval", "YInterval",     "TickSize",
    "MinorTick", "EastingMark",  "Azimuth",   "Elevation",     "Contrast",
    "BiasMode",  "LockPosition", "Width",     "Justification", "Description"};

inline std::string SectionName(int section) {
    return "Display(" + std::to_string(section) + ")";
}

/// Words, flags, whole and decimal numbers in turn.
inline std::string Value(int key, Numbers& numbers) {
    static constexpr std::array<const char*, 4> words = {"Dashed", "Liberation Sans", "Solid",
                                                         "Upper left"};
    const std::uint64_t number = numbers.Next();
    switch (key % 4) {
        case 0:
            return std::to_string(number % 2);
        case 1:
            return words[number % words.size()];
        case 2:
            return std::to_string(static_cast<double>(number % 100'000'000) / 1000.0);
        default:
            return std::to_string(number % 0x1000000);
    }
}

/// A settings file as the library writes it.
inline std::string SettingsText(Shape shape) {
    const std::size_t widestName = shape.OwnNames ? 20 : 14;
    Numbers numbers;
    std::string text;
    for (int section = 0; section < shape.Sections; ++section) {
        text += "[" + SectionName(section) + "]\r\n";
        for (int key = 0; key < shape.Keys; ++key) {
            std::string name(KeyNames[static_cast<std::size_t>(key)]);
            if (shape.OwnNames) {
                name += std::to_string(section);
            }
            text.append(name).append(widestName - name.size(), ' ').append("= ");
            text.append(Value(key, numbers)).append("\r\n");
        }
        text += "\r\n";
    }
    return text;
}

}  // namespace BENCH
