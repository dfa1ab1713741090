// SPDX-License-Identifier: MIT
#include <marlin/base/math.h>
#include <marlin/records/detail/record_keys.h>
#include <marlin/records/panel_info.h>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

namespace {

// The comparison with a tolerance takes doubles, which hold every float.
bool Equal(float a, float b) noexcept {
    return MATH::Equal(static_cast<double>(a), static_cast<double>(b));
}

// Files in use hold positions of single precision, so more digits than that are not read.
struct Position {
    double& Coordinate;

    void Read(const SectionKey& key) {
        float value = 0.0F;
        if (ParseNumber(key.GetValue(), value)) {
            Coordinate = static_cast<double>(value);
        }
    }
    void Write(SectionKey& key) const { key << Coordinate; }
    [[nodiscard]] RecordValue Value() const { return Coordinate; }
};

// A panel whose file names no anchor has the default one, whichever it had before.
struct Anchor {
    int& Code;

    void Read(const SectionKey& key) {
        Code = 0;
        key >> Code;
    }
    void Write(SectionKey& key) const { key << Code; }
    [[nodiscard]] RecordValue Value() const { return Code; }
};

}  // namespace

// Not in the header, so that the library alone has the table of virtual functions.
PanelInfo::~PanelInfo() = default;

bool PanelInfo::operator==(const PanelInfo& other) const noexcept {
    return Equal(Width, other.Width) && Equal(Height, other.Height) &&
           MATH::Equal(PosX, other.PosX) && MATH::Equal(PosY, other.PosY) &&
           LockPosSize == other.LockPosSize && Justification == other.Justification;
}

template <class Keys>
void PanelInfo::ForEachKey(const Keys& keys) {
    keys(Common({"Width", 3, "width on the paper", RecordKey::Paper}), Width);
    keys(Common({"Height", 4, "height on the paper", RecordKey::Paper}), Height);
    keys({.Name = "PosX",
          .Field = 1,
          .Meaning = "x on the paper",
          .Unit = RecordKey::Paper,
          .PrefixedName = "X"},
         Position{PosX});
    keys({.Name = "PosY",
          .Field = 2,
          .Meaning = "y on the paper",
          .Unit = RecordKey::Paper,
          .PrefixedName = "Y"},
         Position{PosY});
    keys({"LockPosSize", 5, "must not be moved or resized"}, LockPosSize);
    keys({"Justification", 6, "code of the point at the position"}, Anchor{Justification});
}

bool PanelInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool PanelInfo::Read(const std::string& prefix, const Section& section) {
    ForEachKey(KeyReader(section, prefix + "."));
    return true;
}

bool PanelInfo::Write(Section& section) const {
    PanelInfo(*this).ForEachKey(KeyReplacer(section));
    return true;
}

bool PanelInfo::Write(const std::string& prefix, Section& section) const {
    PanelInfo(*this).ForEachKey(KeyReplacer(section, prefix + "."));
    return true;
}

RecordFields PanelInfo::Fields() const {
    RecordFields fields;
    PanelInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
