// SPDX-License-Identifier: MIT
#include <hosts/transcript.h>

namespace {

// Each case begins with lines of its title, "# ...", and ends before an empty line and the next.
std::vector<Transcript> ReadTranscripts(const std::string& path) {
    std::vector<Transcript> transcripts;
    for (const std::string& line : LinesOf(path)) {
        if (line.starts_with("# ")) {
            if (transcripts.empty() || !transcripts.back().Steps.empty()) {
                transcripts.emplace_back();
            }
            transcripts.back().Title += line.substr(1);
        } else {
            transcripts.back().Take(line);
        }
    }
    for (std::size_t i = 0; i + 1 < transcripts.size(); ++i) {
        transcripts[i].Steps.back().Printed.pop_back();  // the empty line
    }
    return transcripts;
}

class Commands : public testing::TestWithParam<const char*> {};

TEST_P(Commands, PrintWhatTheirTranscriptsShow) {
    const std::string path =
        MARLIN_SOURCE_DIR "/tests/hosts/" + std::string(GetParam()) + ".console";
    const std::vector<Transcript> transcripts = ReadTranscripts(path);
    EXPECT_FALSE(transcripts.empty()) << path;
    for (const Transcript& transcript : transcripts) {
        SCOPED_TRACE(transcript.Title);
        const Shell shell;
        for (const Transcript::Step& step : transcript.Steps) {
            EXPECT_EQ(shell.Run(step.Command), step.Printed) << step.Command;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Commands,
                         testing::Values("bad_input", "colors", "contours", "file", "keywords",
                                         "settings", "text"),
                         [](const auto& transcript) { return std::string(transcript.param); });

// The page leaves out exit codes.
TEST(CommandsPage, EveryExamplePrintsWhatThePageShows) {
    const std::string source = MARLIN_SOURCE_DIR;
    Transcript page;
    bool isConsole = false;
    for (const std::string& line : LinesOf(source + "/docs/commands.md")) {
        if (line.starts_with("```")) {
            isConsole = line == "```console";
        } else if (isConsole) {
            page.Take(line);
        }
    }
    EXPECT_GT(page.Steps.size(), 20U);
    const Shell shell;
    std::filesystem::copy(source + "/examples/palettes/shelf.cpt", shell.Path("shelf.cpt"));
    for (const Transcript::Step& step : page.Steps) {
        std::string printed = shell.Run("set +o pipefail; " + step.Command);
        if (printed.ends_with("[1]\n")) {
            printed.resize(printed.size() - 4);
        }
        EXPECT_EQ(printed, step.Printed) << step.Command;
    }
}

}  // namespace
