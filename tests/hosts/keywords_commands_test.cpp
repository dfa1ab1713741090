// SPDX-License-Identifier: MIT
#include <filesystem>

#include <hosts/program.h>

namespace {

TEST(KeywordsCommands, TextsAndFilesAreCountedTogetherInTheOrderOfTheirKeywords) {
    const Program program;
    program.Write("title.txt", "%plot name% of %project name%, 50% \xD8st\n%\xC5rstid%%%");
    ExpectSteps(program, {
                             {{"keywords", "scan", "%Name% %project name% %Name%", "title.txt"},
                              0,
                              "Keyword       Count  Predefined\n"
                              "Name              2  no\n"
                              "project name      2  yes\n"
                              "plot name         1  in plots\n"
                              "Årstid            1  no\n"},
                             {{"keywords", "scan", "--json", "%plot name%"},
                              0,
                              "[\n  {\n    \"name\": \"plot name\",\n    \"count\": 1,\n"
                              "    \"predefined\": true,\n    \"plotsOnly\": true\n  }\n]\n"},
                             {"keywords scan 100%", 0, "Keyword  Count  Predefined\n"},
                             {"keywords scan %a% title", 2, "", "title: No such file or directory"},
                         });
}

TEST(KeywordsCommands, AMillionKeywordsAndNullBytesAreCounted) {
    const Program program;
    std::string text("%not\0one%\n", 10);
    for (int i = 0; i < 1'000'000; ++i) {
        text += "%k" + std::to_string(i % 7) + "%";
    }
    program.Write("many", text);
    std::string table = "Keyword   Count  Predefined\nk0       142858  no\n";
    for (int i = 1; i < 7; ++i) {
        table += "k" + std::to_string(i) + "       142857  no\n";
    }
    ExpectSteps(program, {{"keywords scan many", 0, table}});
}

TEST(KeywordsCommands, ListShowsTheFileThatWasFoundAndItsChoices) {
    const Program program;
    std::filesystem::create_directory(program.Path("keywords"));
    const std::string folder = std::filesystem::path(program.Path("keywords")).parent_path();
    ::setenv("MARLIN_DATA_DIR", folder.c_str(), 1);
    program.Write("keywords/Keywords", "[chart scale]\n1:5000\n1:\x80\n[empty]\n");
    const std::string path = folder + "/keywords/Keywords";
    ExpectSteps(program, {{"keywords list", 0,
                           path + "\nKeyword      Choice\nchart scale  1:5000\n"
                                  "             1:€\nempty\n"},
                          {"keywords list --json", 0,
                           "{\n  \"file\": \"" + path +
                               "\",\n  \"keywords\": [\n    {\n      \"name\": \"chart scale\",\n"
                               "      \"choices\": [\n        \"1:5000\",\n        \"1:€\"\n"
                               "      ]\n    },\n    {\n      \"name\": \"empty\",\n"
                               "      \"choices\": []\n    }\n  ]\n}\n"}});
    program.Write("keywords/Keywords", "[A]\nx\n[A]\ny\n");
    const ProgramResult broken = program.Run("keywords list");
    EXPECT_EQ(broken.Code, 1);
    EXPECT_EQ(broken.Out, path + "\nKeyword  Choice\nA        x\n");
    EXPECT_EQ(broken.Err.find("marlin: " + path + ":3"), 0U) << broken.Err;
    ::unsetenv("MARLIN_DATA_DIR");
}

}  // namespace
