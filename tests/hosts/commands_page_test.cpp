// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>

#include <hosts/program.h>

namespace {

// A command of the page and what the page says that it prints.
struct Example {
    std::string Command;
    std::string Printed;
};

std::vector<Example> ExamplesOf(const std::string& page) {
    std::vector<Example> examples;
    bool isConsole = false;
    for (std::size_t at = 0; at < page.size();) {
        const std::size_t end = std::min(page.find('\n', at), page.size());
        const std::string line = page.substr(at, end - at);
        at = end + 1;
        if (line.starts_with("```")) {
            isConsole = line == "```console";
        } else if (isConsole && line.starts_with("$ ")) {
            examples.push_back({line.substr(2), ""});
        } else if (isConsole) {
            examples.back().Printed += line + "\n";
        }
    }
    return examples;
}

TEST(CommandsPage, EveryExamplePrintsWhatThePageShows) {
    const std::string source = MARLIN_SOURCE_DIR;
    const TemporaryFolder folder;
    std::filesystem::copy(source + "/examples/palettes/shelf.cpt", folder.File("shelf.cpt"));
    const std::string program = std::filesystem::path(MARLIN_PROGRAM).parent_path();
    const std::vector<Example> examples =
        ExamplesOf(Program::ReadAll(source + "/docs/commands.md"));
    EXPECT_GT(examples.size(), 20U);
    const TemporaryFolder output;
    for (const Example& example : examples) {
        const std::string command = "cd '" + folder.File("") + "' && PATH='" + program +
                                    "':$PATH && ( " + example.Command + " ) >'" +
                                    output.File("out") + "' 2>&1";
        static_cast<void>(std::system(command.c_str()));
        std::string printed = Program::ReadAll(output.File("out"));
        std::erase(printed, '\r');
        EXPECT_EQ(printed, example.Printed) << example.Command;
    }
}

}  // namespace
