// SPDX-License-Identifier: MIT
#include <marlin/contours/contour_info.h>
#include <marlin/contours/detail/contour_keys.h>
#include <marlin/contours/record_kinds.h>
#include <marlin/records/bias_info.h>
#include <marlin/records/dxf_info.h>
#include <marlin/records/geo_grid_info.h>
#include <marlin/records/grid_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/map_info.h>
#include <marlin/records/panel_info.h>
#include <marlin/records/paper_grid.h>
#include <marlin/records/sun_illumination_info.h>
#include <marlin/settings/section.h>

namespace MARLINSUITE {

namespace {

template <class Record>
concept Prefixed = requires(Record record, const std::string& prefix, const Section& section) {
    record.Read(prefix, section);
};

template <class Record>
RecordFields DefaultFields() {
    return Record().Fields();
}

template <class Record>
RecordFields ReadFields(const Section& section, const std::string& prefix) {
    Record record;
    if constexpr (Prefixed<Record>) {
        if (!prefix.empty()) {
            record.Read(prefix, section);
            return record.Fields();
        }
    }
    static_cast<void>(record.Read(section));  // always a success
    return record.Fields();
}

template <class Record>
constexpr RecordKind KindOf(const char* name, const char* className, int numNeeded) {
    return {
        name, className, numNeeded, Prefixed<Record>, &DefaultFields<Record>, &ReadFields<Record>};
}

// A definition that describes itself, as the records do.
struct ContourRecord {
    ContourDefinitionList::ContourDefInfo Contour;

    void Read(const Section& section) {
        static_cast<void>(Contour.Read(section));  // always a success
    }
    [[nodiscard]] RecordFields Fields() {
        RecordFields fields;
        detail::ForEachContourKey(Contour, detail::KeyLister(fields));
        return fields;
    }
};

// Where two keys are needed, programs use the names for other things as well.
constexpr RecordKind kinds[] = {
    KindOf<LineInfo>("line", "LineInfo", 2),
    KindOf<DXFInfo>("DXF pen", "DXFInfo", 1),
    KindOf<BiasInfo>("bias", "BiasInfo", 1),
    KindOf<SunIlluminationInfo>("sun illumination", "SunIlluminationInfo", 1),
    KindOf<CMapInfo>("map", "CMapInfo", 1),
    KindOf<GridInfo>("grid", "GridInfo", 2),
    KindOf<GeoGridInfo>("geographic grid", "GeoGridInfo", 1),
    KindOf<PaperGrid>("paper grid", "PaperGrid", 2),
    KindOf<PanelInfo>("panel", "PanelInfo", 2),
    KindOf<ContourInfo>("contour settings", "ContourInfo", 1),
    KindOf<ContourRecord>("contour definition", "ContourDefinitionList::ContourDefInfo", 2),
};

}  // namespace

std::span<const RecordKind> RecordKinds() noexcept {
    return kinds;
}

}  // namespace MARLINSUITE
