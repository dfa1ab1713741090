// SPDX-License-Identifier: MIT
#include "command_line.h"

#include "families.h"
#include "nearest_word.h"
#include <marlin/platform/kernel/process.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <CLI/CLI.hpp>

namespace HOST {

namespace {

struct WrongWord {
    std::string Message;
    std::string Chosen;
};

int RefuseUsage(const std::string& reason, const std::string& chosen) {
    Report(reason);
    Report("\"" + chosen + " --help\" tells more");
    return UNUSABLE;
}

class CommandLine {
public:
    CommandLine();
    [[nodiscard]] int Run(const std::vector<std::string>& words, Output& output);

private:
    [[nodiscard]] std::string ChosenWords() const;
    void RequireCommands(const std::vector<std::string>& words) const;

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
    AddFamilies(program);
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

// The parser would take a wrong word for an argument, and say only that something is missing.
void CommandLine::RequireCommands(const std::vector<std::string>& words) const {
    const CLI::App* app = &m_App;
    std::string chosen = m_App.get_name();
    for (const std::string& word : words) {
        std::vector<std::string> names;
        for (const CLI::App* command : app->get_subcommands({})) {
            names.push_back(command->get_name());
        }
        if (names.empty() || word.starts_with('-')) {
            return;
        }
        if (std::ranges::find(names, word) == names.end()) {
            throw WrongWord{"\"" + word + "\" is no command of \"" + chosen +
                                "\"; the nearest is \"" + NearestWord(word, names) + "\"",
                            chosen};
        }
        app = app->get_subcommand(word);
        chosen += " " + word;
    }
}

int CommandLine::Run(const std::vector<std::string>& words, Output& output) {
    try {
        RequireCommands(words);
        // The parser takes its words from the end.
        m_App.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::CallForHelp&) {
        output.Text = m_App.help();  // of the innermost command
        return DONE;
    } catch (const CLI::CallForVersion& version) {
        output.Text = std::string(version.what()) + "\n";
        return DONE;
    } catch (const CLI::ParseError& error) {
        return RefuseUsage(error.what(), ChosenWords());
    } catch (const WrongWord& wrong) {
        return RefuseUsage(wrong.Message, wrong.Chosen);
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

bool IsColorWanted() {
    const char* const unwanted = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return (!unwanted || !*unwanted) && (!terminal || std::string_view(terminal) != "dumb");
}

}  // namespace

int RunCommandLine(int argc, char** argv) {
    Output output;
    output.HasColors = PLATFORM::IsTerminal(stdout) && IsColorWanted();
    try {
        const int code = CommandLine().Run(WordsOf(argc, argv), output);
        return Finish(output, code);
    } catch (const Failure& failure) {
        Report(failure.what());
        return failure.Code();
    }
}

}  // namespace HOST
