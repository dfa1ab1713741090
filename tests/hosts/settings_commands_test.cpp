// SPDX-License-Identifier: MIT
#include <hosts/program.h>

namespace {

TEST(SettingsCommands, ValuesAreFoundIgnoringCaseAndPrintedAsUtf8) {
    const Program program;
    program.Write("s.ini", "[General]\nName=Sj\xF8 \x96 x\nName=2\nEmpty=\n");
    ExpectSteps(program,
                {
                    {"settings get s.ini GENERAL name", 0, "Sjø – x\n"},
                    {"settings get s.ini General Empty", 0, "\n"},
                    {"settings get s.ini General settings", 1, "",
                     "s.ini: no key \"settings\" in section \"General\""},
                    {"settings get s.ini Other Name", 1, "", "s.ini: no section \"Other\""},
                });
}

TEST(SettingsCommands, SettingKeepsCommentsOrderAndWhatStandsBeforeTheFirstHeader) {
    const Program program;
    program.Write("s.ini",
                  "; made by hand\nstray\n[General] ;first\nA=1\n; about B\nLonger=22 ; note\n"
                  "[Ship]\nX=1\n");
    ExpectSteps(program,
                {
                    {"settings set s.ini general a 7", 0, "[general] a = 7\n"},
                    {"settings set s.ini General New -5", 0, "new key [General] New = -5\n"},
                    {{"settings", "set", "s.ini", "Port", "Name", "Århus €"},
                     0,
                     "new section [Port]\nnew key [Port] Name = Århus €\n"},
                    {"settings set s.ini Ship X -- -x", 0, "[Ship] X = -x\n"},
                });
    EXPECT_EQ(program.Read("s.ini"),
              "; made by hand\nstray\n"
              "[General] ;first\r\nA      = 7\r\n; about B\r\nLonger = 22 ; note\r\n"
              "New    = -5\r\n\r\n[Ship]\r\nX = -x\r\n\r\n[Port]\r\nName = \xC5rhus \x80\r\n\r\n");
}

TEST(SettingsCommands, AValueThatWouldNotComeBackIsRefused) {
    const Program program;
    const std::string text = "[A]\nk=1\n;c\n";
    program.Write("s.ini", text);
    const std::string cannot = "s.ini: a settings file cannot hold ";
    ExpectSteps(
        program,
        {
            {"settings set s.ini A k a;b", 2, "", cannot + "[A] k = a;b"},
            {{"settings", "set", "s.ini", "A", "k", " a"}, 2, "", cannot + "[A] k =  a"},
            {{"settings", "set", "s.ini", "A", "k", "a\nb"}, 2, "", cannot + "[A] k = a\\x0Ab"},
            {"settings set s.ini A k= a", 2, "", cannot + "[A] k= = a"},
            {"settings set s.ini A [k a]b", 2, "", cannot + "[A] [k = a]b"},
            {"settings set s.ini B] k a", 2, "", cannot + "[B]] k = a"},
            {{"settings", "set", "s.ini", "A", "", ""}, 2, "", "SECTION and KEY must not be empty"},
            {"settings set s.ini A k 海", 2, "",
             "\"海\" holds a character that Windows-1252 lacks"},
        });
    EXPECT_EQ(program.Read("s.ini"), text);
}

TEST(SettingsCommands, WhatSavingWouldDropIsNotSaved) {
    const Program program;
    const std::string text = "[A] tail\nk=1\n=lost\n";
    program.Write("s.ini", text);
    const std::string cause =
        "s.ini:1: text behind the section header is not read, and would be lost";
    ExpectSteps(program, {{"settings set s.ini A k 2", 2, "", cause},
                          {"settings seal s.ini", 2, "", cause}});
    EXPECT_EQ(program.Read("s.ini"), text);
}

TEST(SettingsCommands, ASealedSectionIsToldUnchangedChangedAndNotSealed) {
    const Program program;
    program.Write("s.ini", "[A]\nk=1\n[B]\nk=1\n[C]\nk=1\n");
    ExpectSteps(program, {
                             {"settings seal s.ini a None", 1, "", "s.ini: no section \"None\""},
                             {"settings seal s.ini a B", 0, "2 sections sealed\n"},
                             {"settings seal s.ini A", 0, "already sealed, nothing written\n"},
                             {"settings set s.ini B k 2", 0,
                              "[B] k = 2\n[B] was sealed and is now changed\n"},
                             {"settings check s.ini", 1,
                              "s.ini\n"
                              "Section  Line  Keys  State\n"
                              "A           1     2  sealed, unchanged\n"
                              "B           5     2  changed since sealed\n"
                              "C           9     1  not sealed\n",
                              "s.ini: section \"B\" changed since it was sealed"},
                             {"settings seal s.ini", 0, "2 sections sealed\n"},
                             {"settings check s.ini", 0,
                              "s.ini\n"
                              "Section  Line  Keys  State\n"
                              "A           1     2  sealed, unchanged\n"
                              "B           5     2  sealed, unchanged\n"
                              "C           9     2  sealed, unchanged\n"},
                         });
}

TEST(SettingsCommands, CheckNamesEveryFaultWithItsLine) {
    const Program program;
    struct Case {
        const char* Text;
        int Code;
        const char* Err;
    };
    const Case cases[] = {
        {"[A]\n\nk=1\n", 0, ""},
        {"[A]\nk=1\nj=1\nK=2\n", 1, "f:4: key \"K\" stands already on line 2"},
        {"[A]\n[B]\n[a]\n", 1, "f:3: Error! Duplicate sectiona found! The first is on line 1."},
        {"[A]\nk=1\n[]\n", 1, "f:3: Invalid section definition on line 3"},
        {"k=1\n\n; c\n[A]\n", 0,
         "f:1: warning: 2 lines before the first section header are not read"},
        {"k=1\n", 1,
         "f:1: warning: a line before the first section header is not read\n"
         "marlin: f: no section"},
        {"\xEF\xBB\xBF[A]\n[B]\n", 0,
         "f:1: warning: a byte order mark: a header on this line is not seen as one\n"
         "marlin: f:1: warning: a line before the first section header is not read"},
        {"[A]\nk=\x1B[2J\n", 0, "f:2: warning: the control character \\x1B"},
        {"[A] x ;c\n=v\n", 0,
         "f:1: warning: text behind the section header is not read\n"
         "marlin: f:2: warning: a value without a key"},
        {"", 1, "f: no section"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Text);
        program.Write("f", c.Text);
        const ProgramResult result = program.Run("settings check f");
        EXPECT_EQ(result.Code, c.Code);
        EXPECT_EQ(result.Err, *c.Err ? "marlin: " + std::string(c.Err) + "\n" : "");
    }
}

TEST(SettingsCommands, CheckPrintsJsonForAProgram) {
    const Program program;
    program.Write("f", "[Sj\xF8 \"x\"]\nk=1\nk=2\n");
    const ProgramResult result = program.Run("settings check --json f");
    EXPECT_EQ(result.Code, 1);
    EXPECT_EQ(result.Out, R"([
  {
    "file": "f",
    "code": 1,
    "failure": "",
    "errors": [
      {
        "line": 3,
        "cause": "key \"k\" stands already on line 2"
      }
    ],
    "warnings": [],
    "sections": [
      {
        "name": "Sjø \"x\"",
        "line": 1,
        "keys": 2,
        "state": "not sealed"
      }
    ]
  }
]
)");
}

TEST(SettingsCommands, DiffTellsWhatWasAddedRemovedAndChanged) {
    const Program program;
    program.Write("a", "[Both]\nSame=1\nOld=1\nValue=1\nTwice=1\nTwice=2\n[Gone]\nk=1\n");
    program.Write("b", "[New]\n[BOTH]\nTWICE=1\nvalue=2\nsame=1 ;c\nTwice=3\nAdded=\xE6\n");
    ExpectSteps(program, {
                             {"settings diff a b", 1,
                              "  [Both]\n"
                              "- Old = 1\n"
                              "- Value = 1\n+ value = 2\n"
                              "- Twice = 2\n+ Twice = 3\n"
                              "+ Added = æ\n"
                              "- [Gone]\n"
                              "+ [New]\n",
                              ""},
                             {"settings diff a a", 0, ""},
                             {"settings diff --json a a", 0, "[]\n"},
                             {"settings diff a c", 2, "", "c: No such file or directory"},
                         });
    EXPECT_NE(program.Run("settings diff --json a b")
                  .Out.find("    \"change\": \"changed\",\n    \"section\": \"Both\",\n"
                            "    \"key\": \"Value\",\n    \"old\": \"1\",\n    \"new\": \"2\"\n"),
              std::string::npos);
}

}  // namespace
