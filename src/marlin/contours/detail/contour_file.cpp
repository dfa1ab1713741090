// SPDX-License-Identifier: MIT
#include <marlin/base/files/detail/file_output.h>
#include <marlin/base/files/detail/line_reader.h>
#include <marlin/base/files/detail/settings_reader.h>
#include <marlin/base/files/detail/settings_writer.h>
#include <marlin/color/dxf_color.h>
#include <marlin/contours/detail/contour_file.h>
#include <marlin/contours/detail/contour_sections.h>
#include <marlin/core/number_text.h>

#include <iterator>
#include <string_view>

namespace MARLINSUITE {

namespace {

using ContourDefInfo = ContourDefinitionList::ContourDefInfo;

const std::string& LineTypeText(int lineType) noexcept {
    const bool known =
        lineType >= 0 && lineType < static_cast<int>(std::size(ContourDefinitionList::LINESTYLES));
    return ContourDefinitionList::LINESTYLES[known ? lineType : 0];
}

class ContourWriter {
public:
    explicit ContourWriter(BlockOutput& output) : m_Writer(output) {}

    void Add(unsigned int n, const ContourDefInfo& definition) {
        constexpr std::string_view longestName = "TrueColor";
        m_Value = "Contour(";
        AppendNumber(m_Value, n);
        m_Value += ')';
        // Without comments the length of the values is of no account.
        m_Writer.BeginSection(m_Value, "", longestName.size(), 0);
        AddDecimal("Level", definition.Level);
        AddInteger("Color", DXFColor(definition.Color).Index());
        AddInteger("TrueColor", definition.Color);
        m_Writer.AddKey("LineType", LineTypeText(definition.LineType), "");
        AddDecimal("LineWidth", static_cast<double>(definition.LineWidth));
        AddInteger("Annotate", definition.Annotate);
        m_Writer.EndSection();
    }

private:
    void AddDecimal(std::string_view name, double value) {
        m_Value.clear();
        AppendFixed(m_Value, value, 6);
        m_Writer.AddKey(name, m_Value, "");
    }

    template <class T>
    void AddInteger(std::string_view name, T value) {
        m_Value.clear();
        AppendNumber(m_Value, value);
        m_Writer.AddKey(name, m_Value, "");
    }

    SettingsWriter m_Writer;
    std::string m_Value;
};

void WriteAll(BlockOutput& output, std::span<const ContourDefInfo> definitions) {
    ContourWriter writer(output);
    unsigned int n = 0;
    for (const ContourDefInfo& definition : definitions) {
        writer.Add(n, definition);
        ++n;
    }
}

}  // namespace

bool ReadContourFile(const std::string& path, std::vector<ContourDefInfo>& definitions) {
    LineReader lines;
    if (lines.Open(path) != 0) {
        return false;
    }
    ContourSections sections;
    // A fault in the file ends the reading; the sections before it count.
    const SettingsOutcome outcome = ReadSettings(lines, sections);
    if (outcome.Kind == SettingsOutcome::READ_ERROR || sections.Empty()) {
        return false;
    }
    ContourDefInfo definition;
    int paletteIndex = 0;
    for (std::size_t n = 0; const ContourSection* section = sections.Find(n); ++n) {
        section->Apply(definition, paletteIndex);
        definitions.push_back(definition);
    }
    return true;
}

bool WriteContourFile(const std::string& path, std::span<const ContourDefInfo> definitions) {
    const auto contents = [definitions](BlockOutput& output) { WriteAll(output, definitions); };
    return ReplaceFile(path, contents).Empty();
}

}  // namespace MARLINSUITE
