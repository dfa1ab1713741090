// SPDX-License-Identifier: MIT
#include "command_line.h"

#include "commands.h"
#include "output.h"

#include <cstdlib>
#include <functional>
#include <string_view>

#include <CLI/CLI.hpp>
#include <unistd.h>

namespace HOST {

namespace {

// A command's arguments live here while the line is read and the command runs.
struct Arguments {
    GenerateArguments Generate;
    ContourArguments Contour;
    SettingArguments Setting;
    TextArguments Text;
    std::vector<std::string> Files;
    std::vector<std::string> Names;
    std::string File;
    std::string OtherFile;
    bool IsForced = false;
};

class CommandLine {
public:
    explicit CommandLine(Output& output);
    int Run(const std::vector<std::string>& words);

private:
    void AddContours();
    void AddContourEdit(CLI::App* command);
    void AddColors();
    void AddSettings();
    void AddKeywords();
    void AddFiles();
    void AddTextMeasuring();
    void AddTextStyle(CLI::App* command);

    CLI::App* AddFamily(const char* name, const char* description);
    CLI::App* AddCommand(CLI::App* family, const char* name, const char* description,
                         std::function<int()> run);
    void AddJson(CLI::App* command) {
        command->add_flag("--json", m_Output.Json, "Print JSON for a program to read");
    }
    static CLI::Option* AddText(CLI::App* command, const char* name, std::string& text,
                                const char* description, const char* type = "") {
        return command->add_option(name, text, description)->type_name(type);
    }
    // One or more words.
    static CLI::Option* AddTexts(CLI::App* command, const char* name,
                                 std::vector<std::string>& texts, const char* description) {
        return command->add_option(name, texts, description)->type_name("");
    }
    [[nodiscard]] const CLI::App* Innermost() const;

    Output& m_Output;
    Arguments m_Arguments;
    std::function<int()> m_Command;
    CLI::App m_App{
        "Contour files, color tables, settings files and checksummed files of the "
        "Marlin suite,\nand the measuring of plot texts.\nExit codes: 0 done; 1 found something "
        "wrong, or refused; "
        "2 wrong usage, or a file that\ncannot be read or written.",
        "marlin"};
};

CommandLine::CommandLine(Output& output) : m_Output(output) {
    m_App.set_version_flag("--version", "marlin " MARLIN_VERSION, "Print the version and exit");
    m_App.require_subcommand(1);
    AddContours();
    AddColors();
    AddSettings();
    AddKeywords();
    AddFiles();
    AddTextMeasuring();
}

CLI::App* CommandLine::AddFamily(const char* name, const char* description) {
    CLI::App* const family = m_App.add_subcommand(name, description);
    family->require_subcommand(1);
    return family;
}

CLI::App* CommandLine::AddCommand(CLI::App* family, const char* name, const char* description,
                                  std::function<int()> run) {
    CLI::App* const command = family->add_subcommand(name, description);
    command->callback([this, run = std::move(run)] { m_Command = run; });
    return command;
}

void CommandLine::AddContours() {
    CLI::App* const family = AddFamily("contours", "Contour definition files (.cdf)");
    CLI::App* command = AddCommand(family, "list", "Show the levels of a file",
                                   [this] { return ListContours(m_Arguments.File, m_Output); });
    AddText(command, "FILE", m_Arguments.File, "Contour definition file")->required();
    AddJson(command);

    command = AddCommand(family, "edit", "Edit a file in a window",
                         [this] { return EditContours(m_Arguments.File); });
    AddText(command, "FILE", m_Arguments.File, "Contour definition file")->required();

    GenerateArguments& generate = m_Arguments.Generate;
    command = AddCommand(family, "generate", "Make a file from a range or from a color table",
                         [this] { return GenerateContours(m_Arguments.Generate, m_Output); });
    CLI::Option* const range =
        command->add_option("--range", generate.Range, "Lowest and highest level, and the interval")
            ->type_name("LOW HIGH INTERVAL")
            ->expected(3);
    CLI::Option* const table =
        AddText(command, "--table", generate.Table, "Color table (.col) or palette (.cpt)", "FILE");
    range->excludes(table);
    command->add_flag("--invert", generate.Invert, "Invert the table's colors")->needs(table);
    command->add_flag("--snap-dxf", generate.SnapDxf, "Use the nearest colors of the DXF palette")
        ->needs(table);
    AddText(command, "-o,--output", generate.OutFile, "The file to write", "FILE")->required();

    ContourArguments& contour = m_Arguments.Contour;
    AddContourEdit(AddCommand(family, "set", "Change the lines of levels",
                              [this] { return SetContours(m_Arguments.Contour, m_Output); }));
    AddContourEdit(AddCommand(family, "add", "Add levels; makes the file when it is missing",
                              [this] { return HOST::AddContours(m_Arguments.Contour, m_Output); }));
    command = AddCommand(family, "remove", "Remove levels",
                         [this] { return RemoveContours(m_Arguments.Contour, m_Output); });
    AddText(command, "FILE", contour.File, "Contour definition file")->required();
    AddTexts(command, "LEVEL", contour.Levels, "Levels, to six decimals")->required();
}

void CommandLine::AddContourEdit(CLI::App* command) {
    ContourArguments& contour = m_Arguments.Contour;
    AddText(command, "FILE", contour.File, "Contour definition file")->required();
    AddTexts(command, "LEVEL", contour.Levels, "Levels, to six decimals")->required();
    AddText(command, "--color", contour.Color,
            "#rrggbb, r,g,b, r/g/b, dxf:N or the name of a basic color", "COLOR");
    AddText(command, "--line-type", contour.LineType, "continuous, dashed or dotted", "TYPE");
    AddText(command, "--width", contour.Width, "Line width", "NUMBER");
    AddText(command, "--label", contour.Label, "on or off", "SWITCH");
}

void CommandLine::AddColors() {
    CLI::App* const family = AddFamily("colors", "Color tables (.col), palettes (.cpt), DXF");
    CLI::App* command = AddCommand(family, "convert", "Write a palette as a color table", [this] {
        return ConvertColors(m_Arguments.File, m_Arguments.OtherFile, m_Output);
    });
    AddText(command, "IN", m_Arguments.File, "Palette or color table")->required();
    AddText(command, "OUT", m_Arguments.OtherFile, "Color table to write")->required();

    command = AddCommand(family, "show", "Show a color table or a palette",
                         [this] { return ShowColors(m_Arguments.File, m_Output); });
    AddText(command, "FILE", m_Arguments.File, "Color table or palette")->required();
    AddJson(command);

    command = AddCommand(family, "dxf", "Find the palette index of colors",
                         [this] { return FindDxfColors(m_Arguments.Names, m_Output); });
    AddTexts(command, "COLOR", m_Arguments.Names,
             "#rrggbb, r,g,b, r/g/b, dxf:N or the name of a basic color")
        ->required();
    AddJson(command);
}

void CommandLine::AddSettings() {
    CLI::App* const family = AddFamily("settings", "Settings files");
    CLI::App* command =
        AddCommand(family, "check", "Look for faults, and whether sealed sections changed",
                   [this] { return CheckSettings(m_Arguments.Files, m_Output); });
    AddTexts(command, "FILE", m_Arguments.Files, "Settings files")->required();
    AddJson(command);

    command = AddCommand(family, "seal", "Store checksums, for check to compare", [this] {
        return SealSettings(m_Arguments.File, m_Arguments.Names, m_Output);
    });
    AddText(command, "FILE", m_Arguments.File, "Settings file")->required();
    AddTexts(command, "SECTION", m_Arguments.Names, "Sections; without any, all");

    SettingArguments& setting = m_Arguments.Setting;
    for (const bool isSet : {false, true}) {
        command = AddCommand(family, isSet ? "set" : "get",
                             isSet ? "Change or add a value" : "Print a value", [this, isSet] {
                                 return isSet ? SetSetting(m_Arguments.Setting, m_Output)
                                              : GetSetting(m_Arguments.Setting, m_Output);
                             });
        AddText(command, "FILE", setting.File, "Settings file")->required();
        AddText(command, "SECTION", setting.Section, "Its name, in any case")->required();
        AddText(command, "KEY", setting.Key, "Its name, in any case")->required();
        if (isSet) {
            AddText(command, "VALUE", setting.Value, R"(Behind "--" if it begins with "-")")
                ->required();
        }
    }
    command = AddCommand(family, "show", "Show the records of a file and what they mean",
                         [this] { return ShowSettings(m_Arguments.File, m_Output); });
    AddText(command, "FILE", m_Arguments.File, "Settings file")->required();
    AddJson(command);

    command = AddCommand(family, "diff", "Compare two files key by key", [this] {
        return CompareSettings(m_Arguments.File, m_Arguments.OtherFile, m_Output);
    });
    AddText(command, "A", m_Arguments.File, "Settings file")->required();
    AddText(command, "B", m_Arguments.OtherFile, "Settings file")->required();
    AddJson(command);
}

void CommandLine::AddKeywords() {
    CLI::App* const family = AddFamily("keywords", "Keywords of plot texts");
    CLI::App* command = AddCommand(family, "scan", "Count the keywords of texts and files",
                                   [this] { return ScanKeywords(m_Arguments.Files, m_Output); });
    AddTexts(command, "TEXT|FILE", m_Arguments.Files, "Text with keywords, or a file")->required();
    AddJson(command);

    command = AddCommand(family, "list", "Show the list keywords and their choices",
                         [this] { return ListKeywords(m_Output); });
    AddJson(command);
}

void CommandLine::AddFiles() {
    CLI::App* const family = AddFamily("file", "Checksummed files");
    CLI::App* command = AddCommand(family, "check", "Compare a file with its trailer",
                                   [this] { return CheckFile(m_Arguments.File, m_Output); });
    AddText(command, "FILE", m_Arguments.File, "Checksummed file")->required();
    AddJson(command);

    command = AddCommand(family, "seal", "Append a checksum trailer", [this] {
        return SealFile(m_Arguments.File, m_Arguments.IsForced, m_Output);
    });
    AddText(command, "FILE", m_Arguments.File, "Any file")->required();
    command->add_flag("--force", m_Arguments.IsForced, "Though it is sealed already");
}

void CommandLine::AddTextMeasuring() {
    TextArguments& text = m_Arguments.Text;
    CLI::App* const family = AddFamily("text", "Rectangles of plot texts and depth labels");
    CLI::App* command = AddCommand(family, "measure", "Measure texts",
                                   [this] { return MeasureTexts(m_Arguments.Text, m_Output); });
    AddTextStyle(command);
    AddText(command, "--wrap", text.Wrap, R"(Wrap to that width, and break at each "\P")", "WIDTH");
    AddTexts(command, "TEXT", text.Texts, R"(Behind "--" if one begins with "-")")->required();

    command = AddCommand(family, "depth", "Measure depth labels",
                         [this] { return MeasureDepths(m_Arguments.Text, m_Output); });
    AddTextStyle(command);
    AddText(command, "--presentation", text.Presentation, "How decimals are set apart: 0 to 4",
            "CODE");
    AddText(command, "--placement", text.Placement, "What lies on the position: 0 to 2", "CODE");
    AddText(command, "--precision", text.Precision, "Number of decimals; 2 if not given", "NUMBER");
    AddTexts(command, "DEPTH", text.Texts, "Depths")->required();

    command = AddCommand(family, "fonts", "List the fonts that can be measured",
                         [this] { return ListFonts(m_Output); });
    AddJson(command);
}

void CommandLine::AddTextStyle(CLI::App* command) {
    TextArguments& text = m_Arguments.Text;
    AddText(command, "--font", text.Font, "Face name; Arial if not given", "NAME");
    AddText(command, "--size", text.Size, "Height of the characters; 2.5 if not given", "NUMBER");
    command->add_flag("--bold", text.IsBold, "In its bold face");
    command->add_flag("--italic", text.IsItalic, "In its italic face");
    AddText(command, "--justify", text.Justification,
            "bottom-left to baseline-right, or 0 to 11: the point on the origin", "POINT");
    AddText(command, "--rotate", text.Rotation, "Degrees, clockwise", "NUMBER");
    AddJson(command);
}

const CLI::App* CommandLine::Innermost() const {
    const CLI::App* app = &m_App;
    while (!app->get_subcommands().empty()) {
        app = app->get_subcommands().front();
    }
    return app;
}

int CommandLine::Run(const std::vector<std::string>& words) {
    try {
        m_App.parse(
            std::vector<std::string>(words.rbegin(), words.rend()));  // it takes them from the end
    } catch (const CLI::CallForHelp&) {
        m_Output.Text = m_App.help();  // of the innermost command
        return DONE;
    } catch (const CLI::CallForVersion& version) {
        m_Output.Text = std::string(version.what()) + "\n";
        return DONE;
    } catch (const CLI::ParseError& error) {
        std::string command;
        for (const CLI::App* app = Innermost(); app; app = app->get_parent()) {
            command.insert(0, app->get_name() + (command.empty() ? "" : " "));
        }
        Report(std::string(error.what()));
        Report("\"" + command + " --help\" tells more");
        return UNUSABLE;
    }
    return m_Command();
}

// "-.5" is a number too, which the parser takes for an option.
std::string WithLeadingDigit(std::string_view word) {
    const bool isNumber =
        word.size() > 2 && word.starts_with("-.") && word[2] >= '0' && word[2] <= '9';
    return isNumber ? "-0" + std::string(word.substr(1)) : std::string(word);
}

}  // namespace

int RunCommandLine(int argc, char** argv) {
    Output output;
    output.HasColors = ::isatty(STDOUT_FILENO) != 0 && std::getenv("NO_COLOR") == nullptr;
    std::vector<std::string> words;
    for (int i = 1; i < argc; ++i) {
        const bool isNumber =
            !words.empty() && (words[0] == "contours" ||
                               (words.size() > 1 && words[0] == "text" && words[1] == "depth"));
        words.push_back(isNumber ? WithLeadingDigit(argv[i]) : argv[i]);
    }
    const int code = CommandLine(output).Run(words);
    return Finish(output, code);
}

}  // namespace HOST
