// SPDX-License-Identifier: MIT
#include <marlin/settings/ini_file.h>

#include <chrono>
#include <filesystem>
#include <random>

#include <hosts/program.h>

namespace {

TEST(BadInput, EveryCommandNamesTheFileAndTheCause) {
    const Program program;
    std::filesystem::create_directory(program.Path("folder"));
    program.Write("huge", "[A]\n");
    std::filesystem::resize_file(program.Path("huge"), 500'000'000);
    program.Write("line", "[A]\n" + std::string(2'000'000, 'x'));
    program.Write("binary", std::string("[A]\nk=\0\n", 8));
    const std::vector<std::pair<std::string, std::string>> causes = {
        {"missing", ": No such file or directory"},
        {"folder", ": Is a directory"},
        {"huge", ": larger than "},
        {"line", ":2: a line longer than 1 MiB: not a settings file"},
        {"binary", ":2: a null character: a binary file, not a settings file"},
    };
    const std::vector<std::pair<Words, Words>> commands = {
        {"settings check", {}},
        {"settings show", {}},
        {"settings seal", {}},
        {"settings get", {"A", "k"}},
        {"settings set", {"A", "k", "v"}},
        {"settings diff", {"folder"}},
        {"contours list", {}},
        {"contours set", {"1", "--width", "1"}},
        {"contours remove", {"1"}},
        {"colors show", {}},
        {"colors convert", {"out.col"}},
    };
    for (const auto& [name, cause] : causes) {
        for (const auto& [command, rest] : commands) {
            SCOPED_TRACE(command[0] + " " + command[1] + " " + name);
            Words words = command;
            words.push_back(name);
            words.insert(words.end(), rest.begin(), rest.end());
            const ProgramResult result = program.Run(words);
            EXPECT_EQ(result.Code, 2);
            EXPECT_EQ(result.Out, "");
            EXPECT_EQ(result.Err.find("marlin: " + name + ":"), 0U) << result.Err;
            if (command[0] != "colors") {  // which takes such a text for a palette
                EXPECT_EQ(result.Err.find("marlin: " + name + cause), 0U) << result.Err;
            }
        }
    }
    EXPECT_EQ(program.NumFiles(), 4);
}

TEST(BadInput, UsageThatIsWrongIsAnErrorAndHelpIsNot) {
    const Program program;
    const std::vector<Words> wrong = {
        {},
        "contours",
        "nothing",
        "contours list",
        "contours list a b",
        "contours generate --range 1 2 -o f",
        "contours generate --range 1 2 1",
        "contours generate --range 1 2 1 --invert -o f",
        "contours generate --range 1 2 1 --table t -o f",
        "settings set f A k",
        "file check --fix f",
    };
    for (const Words& words : wrong) {
        const ProgramResult result = program.Run(words);
        EXPECT_EQ(result.Code, 2);
        EXPECT_EQ(result.Out, "");
        EXPECT_NE(result.Err.find(" --help\" tells more\n"), std::string::npos) << result.Err;
    }
    const std::vector<std::pair<Words, std::string>> helps = {
        {"--help", "Usage: marlin [OPTIONS] SUBCOMMAND"},
        {"settings --help", "Usage: marlin settings [OPTIONS] SUBCOMMAND"},
        {"settings set -h", "Usage: marlin settings set [OPTIONS] FILE SECTION KEY VALUE"},
        {"--version", "marlin 4.1.0.7\n"},
    };
    for (const auto& [words, text] : helps) {
        const ProgramResult result = program.Run(words);
        EXPECT_EQ(result.Code, 0);
        EXPECT_EQ(result.Err, "");
        EXPECT_NE(result.Out.find(text), std::string::npos) << result.Out;
    }
}

TEST(BadInput, OutputThatCannotBeWrittenIsAnError) {
    Program program;
    program.Write("f", "[A]\nk=1\n");
    program.SetStandardOutput("/dev/full");
    const ProgramResult result = program.Run("settings get f A k");
    EXPECT_EQ(result.Code, 2);
    EXPECT_EQ(result.Err, "marlin: standard output: No space left on device\n");
}

std::string BigSettings(const std::string& value) {
    IniFile file;
    for (int section = 0; section < 50; ++section) {
        Section& keys = file["Section " + std::to_string(section)];
        for (int key = 0; key < 50; ++key) {
            keys["Key " + std::to_string(key)] << std::string(50, 'x');
        }
    }
    file["Last"]["Value"] << value;
    return file.Text();
}

TEST(BadInput, AFullDiskLeavesEveryOldFileWhole) {
    Program program;
    const std::string settings = BigSettings("1");
    program.Write("s.ini", settings);
    ASSERT_EQ(program.Run("contours generate --range 0 500 1 -o c").Code, 0);
    const std::string contours = program.Read("c");
    program.Write("raw", settings);
    program.Write("p.cpt", "0 black 1 white\n");
    program.Write("t.col", "old");
    program.SetLargestFile(250);
    const std::vector<std::pair<Words, std::string>> commands = {
        {"settings set s.ini Last Value 2", "s.ini"},
        {"settings seal s.ini", "s.ini"},
        {"contours set c 5 --width 1", "c"},
        {"contours add c 0.5", "c"},
        {"contours remove c 5", "c"},
        {"contours generate --range 0 9 1 -o c", "c"},
        {"colors convert p.cpt t.col", "t.col"},
        {"file seal raw", "raw"},
    };
    for (const auto& [words, name] : commands) {
        SCOPED_TRACE(words[0] + " " + words[1]);
        const ProgramResult result = program.Run(words);
        EXPECT_EQ(result.Code, 2);
        EXPECT_EQ(result.Out, "");
        EXPECT_EQ(result.Err, "marlin: " + name + ": File too large\n");
    }
    EXPECT_EQ(program.Read("s.ini"), settings);
    EXPECT_EQ(program.Read("raw"), settings);
    EXPECT_EQ(program.Read("c"), contours);
    EXPECT_EQ(program.Read("t.col"), "old");
    EXPECT_EQ(program.NumFiles(), 5);
}

// Saves the file over and over, each time with the next number, until it is killed.
[[noreturn]] void SaveForever(const Program& program, int first) {
    ::setpgid(0, 0);
    for (int value = first;; ++value) {
        const pid_t child = ::fork();
        if (child == 0) {
            const int nowhere = ::open("/dev/null", O_WRONLY);
            ::dup2(nowhere, STDOUT_FILENO);
            program.Execute({"settings", "set", "s.ini", "Last", "Value", std::to_string(value)});
        }
        ::waitpid(child, nullptr, 0);
    }
}

TEST(BadInput, AProgramKilledWhileItSavesLeavesAWholeFile) {
    const Program program;
    program.Write("s.ini", BigSettings("100000"));
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(program.Run("settings set s.ini Last Value 100001").Code, 0);
    const std::chrono::duration<double, std::micro> once = std::chrono::steady_clock::now() - start;
    std::mt19937 random(20);
    std::uniform_real_distribution<double> moment(0.0, 3.0 * once.count());
    std::string last;
    int numVersions = 0;
    for (int round = 1; round <= 12; ++round) {
        const pid_t saver = ::fork();
        if (saver == 0) {
            SaveForever(program, 100000 + round * 1000);
        }
        ::setpgid(saver, saver);
        ::usleep(static_cast<useconds_t>(moment(random)));
        ::kill(-saver, SIGKILL);
        ::waitpid(saver, nullptr, 0);
        const std::string bytes = program.Read("s.ini");  // a last save may end only now
        IniFile read;
        ASSERT_EQ(read.OpenText(bytes).Text(), "");
        const std::string value = read["Last"]["Value"].GetValue();
        ASSERT_EQ(bytes, BigSettings(value));
        numVersions += value != last ? 1 : 0;
        last = value;
    }
    EXPECT_GT(numVersions, 1) << "no save was seen";
}

}  // namespace
