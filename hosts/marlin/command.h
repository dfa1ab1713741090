// SPDX-License-Identifier: MIT
#pragma once

#include "output/output.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace HOST {

/// The arguments and options of one command, as its help shows them. Each call names a target,
/// which holds what was typed when the command runs; the target of an option that was not given
/// keeps its value.
class Options {
public:
    explicit Options(CLI::App& app) : m_App(app) {}

    /// One word, which must be given.
    void Word(const char* name, std::string& word, const char* description);
    /// One word or more.
    void Words(const char* name, std::vector<std::string>& words, const char* description);
    /// Any number of words, also none.
    void OptionalWords(const char* name, std::vector<std::string>& words, const char* description);

    /// An option with a value; `type` is the value's name in the help.
    void Option(const char* name, std::string& value, const char* description, const char* type);
    void RequiredOption(const char* name, std::string& value, const char* description,
                        const char* type);
    /// An option with three values.
    void Triple(const char* name, std::vector<std::string>& values, const char* description,
                const char* types);
    void Flag(const char* name, bool& isGiven, const char* description);
    /// The flag "--json".
    void Json(bool& isGiven);

    /// Refuses a line that has both options.
    void Exclude(const char* name, const char* other);
    /// Refuses a line that has the first option without the second.
    void Need(const char* name, const char* needed);

private:
    CLI::App& m_App;
};

/// Commands under one word of the command line. A command is a class with the targets of its
/// options as members and two functions: `void Declare(Options&)` and `int Run(Output&)`, which
/// returns an exit code.
class Family {
public:
    using Runner = std::function<int(Output&)>;

    /// `chosen` receives the command that the line names. Both must outlive the family's use.
    Family(CLI::App& app, Runner& chosen) : m_App(app), m_Chosen(chosen) {}

    [[nodiscard]] Family AddFamily(const char* name, const char* description);

    template <class COMMAND>
    void Add(const char* name, const char* description) {
        const auto command = std::make_shared<COMMAND>();
        Options options = AddCommand(name, description,
                                     [command](Output& output) { return command->Run(output); });
        command->Declare(options);
    }

private:
    [[nodiscard]] Options AddCommand(const char* name, const char* description, Runner run);

    CLI::App& m_App;
    Runner& m_Chosen;
};

}  // namespace HOST
