// SPDX-License-Identifier: MIT
#include <marlin/records/bias_info.h>
#include <marlin/settings/section.h>

namespace {

const char* const biasMode = "BiasMode";

}  // namespace

BiasInfo::~BiasInfo() = default;

bool BiasInfo::Read(const Section& section) {
    section[biasMode] >> BiasMode;
    return true;
}

bool BiasInfo::Read(const std::string& prefix, const Section& section) {
    section[prefix + "." + biasMode] >> BiasMode;
    return true;
}

bool BiasInfo::Write(Section& section) const {
    section[biasMode] << BiasMode;
    return true;
}

bool BiasInfo::Write(const std::string& prefix, Section& section) const {
    section[prefix + "." + biasMode] << BiasMode;
    return true;
}
