// SPDX-License-Identifier: MIT
#pragma once

#include "record.h"

#include <string>
#include <vector>

namespace HOST {

/// A kind of record that is written key by key.
struct RecordKind {
    const char* Name;
    bool HasPrefix;                  ///< Whether its keys stand behind a prefix and a ".".
    int Needed;                      ///< How many keys a section must have to hold the record,
    std::vector<const char*> Own;    ///< at least one of these, which tell it from others,
    std::vector<const char*> Other;  ///< and the rest of these.
    /// The prefix is without its ".".
    void (*Describe)(const Section& section, const std::string& prefix, RecordWriter& writer);

    [[nodiscard]] bool IsIn(const Section& section, const std::string& start) const;
};

[[nodiscard]] const std::vector<RecordKind>& RecordKinds();

void DescribeGrid(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeGeoGrid(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribePaperGrid(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeContours(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeContour(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeLine(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeDxfPen(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeBias(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeSun(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribeMap(const Section& section, const std::string& prefix, RecordWriter& writer);
void DescribePanel(const Section& section, const std::string& prefix, RecordWriter& writer);

}  // namespace HOST
