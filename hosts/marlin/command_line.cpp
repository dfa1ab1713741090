// SPDX-License-Identifier: MIT
#include "command_line.h"

#include "families.h"
#include <marlin/platform/kernel/process.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <CLI/CLI.hpp>

namespace HOST {

namespace {

class CommandLine {
public:
    CommandLine();
    [[nodiscard]] int Run(const std::vector<std::string>& words, Output& output);

private:
    [[nodiscard]] std::string ChosenWords() const;

    Family::Runner m_Chosen;
    CLI::App m_App{
        "Contour files, color tables, settings files and checksummed files of the "
        "Marlin suite,\nand the measuring of plot texts.\nExit codes: 0 done; 1 found something "
        "wrong, or refused; "
        "2 wrong usage, or a file that\ncannot be read or written.",
        "marlin"};
};

CommandLine::CommandLine() {
    m_App.set_version_flag("--version", "marlin " MARLIN_VERSION, "Print the version and exit");
    m_App.require_subcommand(1);
    Family program(m_App, m_Chosen);
    AddContours(program);
    AddColors(program);
    AddSettings(program);
    AddKeywords(program);
    AddFile(program);
    AddText(program);
}

// The program's name, then the families and commands that the line named before it went wrong.
std::string CommandLine::ChosenWords() const {
    std::string words = m_App.get_name();
    for (const CLI::App* app = &m_App; !app->get_subcommands().empty();) {
        app = app->get_subcommands().front();
        words += " " + app->get_name();
    }
    return words;
}

int CommandLine::Run(const std::vector<std::string>& words, Output& output) {
    try {
        // The parser takes its words from the end.
        m_App.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::CallForHelp&) {
        output.Text = m_App.help();  // of the innermost command
        return DONE;
    } catch (const CLI::CallForVersion& version) {
        output.Text = std::string(version.what()) + "\n";
        return DONE;
    } catch (const CLI::ParseError& error) {
        Report(error.what());
        Report("\"" + ChosenWords() + " --help\" tells more");
        return UNUSABLE;
    }
    return m_Chosen(output);
}

// "-.5" is a number too, which the parser takes for an option.
std::string WithLeadingDigit(std::string_view word) {
    const bool isNumber =
        word.size() > 2 && word.starts_with("-.") && word[2] >= '0' && word[2] <= '9';
    return isNumber ? "-0" + std::string(word.substr(1)) : std::string(word);
}

// Texts that begin with "-." are left as they are, so only the commands that take numbers count.
std::vector<std::string> WordsOf(int argc, char** argv) {
    std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    const bool hasNumbers =
        !words.empty() &&
        (words[0] == "contours" || (words.size() > 1 && words[0] == "text" && words[1] == "depth"));
    if (hasNumbers) {
        std::ranges::transform(words, words.begin(), WithLeadingDigit);
    }
    return words;
}

}  // namespace

int RunCommandLine(int argc, char** argv) {
    Output output;
    output.HasColors = PLATFORM::IsTerminal(stdout) && std::getenv("NO_COLOR") == nullptr;
    try {
        const int code = CommandLine().Run(WordsOf(argc, argv), output);
        return Finish(output, code);
    } catch (const Failure& failure) {
        Report(failure.what());
        return failure.Code();
    }
}

}  // namespace HOST
