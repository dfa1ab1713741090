// SPDX-License-Identifier: MIT
#include <marlin/records/bias_info.h>
#include <marlin/records/detail/record_keys.h>

using namespace MARLINSUITE;
using namespace MARLINSUITE::detail;

// Not in the header, so that the library alone has the table of virtual functions.
BiasInfo::~BiasInfo() = default;

template <class Keys>
void BiasInfo::ForEachKey(const Keys& keys) {
    keys({"BiasMode", 1, "bias mode"}, BiasMode);
}

bool BiasInfo::Read(const Section& section) {
    ForEachKey(KeyReader(section));
    return true;
}

bool BiasInfo::Read(const std::string& prefix, const Section& section) {
    ForEachKey(KeyReader(section, prefix + "."));
    return true;
}

bool BiasInfo::Write(Section& section) const {
    BiasInfo(*this).ForEachKey(KeyReplacer(section));
    return true;
}

bool BiasInfo::Write(const std::string& prefix, Section& section) const {
    BiasInfo(*this).ForEachKey(KeyReplacer(section, prefix + "."));
    return true;
}

RecordFields BiasInfo::Fields() const {
    RecordFields fields;
    BiasInfo(*this).ForEachKey(KeyLister(fields));
    return fields;
}
