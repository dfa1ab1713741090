// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/records/panel_info.h>
#include <marlin/settings/section.h>

namespace {

bool Equal(float a, float b) noexcept {
    return MATH::Equal(static_cast<double>(a), static_cast<double>(b));
}

// Files in use hold positions of single precision.
void ReadPosition(const SectionKey& key, double& position) {
    float value = 0.0F;
    if (MARLINSUITE::ParseNumber(key.GetValue(), value)) {
        position = static_cast<double>(value);
    }
}

}  // namespace

// The positions have names of their own behind a prefix.
struct PanelInfo::KeyNames {
    std::string Start;
    const char* X = "PosX";
    const char* Y = "PosY";
};

PanelInfo::~PanelInfo() = default;

bool PanelInfo::operator==(const PanelInfo& other) const noexcept {
    return Equal(Width, other.Width) && Equal(Height, other.Height) &&
           MATH::Equal(PosX, other.PosX) && MATH::Equal(PosY, other.PosY) &&
           LockPosSize == other.LockPosSize && Justification == other.Justification;
}

bool PanelInfo::Read(const Section& section) {
    ReadKeys({}, section);
    return true;
}

bool PanelInfo::Read(const std::string& prefix, const Section& section) {
    ReadKeys({prefix + ".", "X", "Y"}, section);
    return true;
}

bool PanelInfo::Write(Section& section) const {
    WriteKeys({}, section);
    return true;
}

bool PanelInfo::Write(const std::string& prefix, Section& section) const {
    WriteKeys({prefix + ".", "X", "Y"}, section);
    return true;
}

void PanelInfo::ReadKeys(const KeyNames& names, const Section& section) {
    section[names.Start + "Width"] >> Width;
    section[names.Start + "Height"] >> Height;
    ReadPosition(section[names.Start + names.X], PosX);
    ReadPosition(section[names.Start + names.Y], PosY);
    section[names.Start + "LockPosSize"] >> LockPosSize;
    Justification = 0;
    section[names.Start + "Justification"] >> Justification;
}

void PanelInfo::WriteKeys(const KeyNames& names, Section& section) const {
    section[names.Start + "Width"] << Width;
    section[names.Start + "Height"] << Height;
    section[names.Start + names.X] << PosX;
    section[names.Start + names.Y] << PosY;
    section[names.Start + "LockPosSize"] << LockPosSize;
    section[names.Start + "Justification"] << Justification;
}
