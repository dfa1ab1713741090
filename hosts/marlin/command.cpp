// SPDX-License-Identifier: MIT
#include "command.h"

#include <utility>

#include <CLI/CLI.hpp>

namespace HOST {

namespace {

// The parser would print "TEXT" after each name, which says nothing.
template <class T>
CLI::Option* Add(CLI::App& app, const char* name, T& target, const char* description,
                 const char* type = "") {
    return app.add_option(name, target, description)->type_name(type);
}

// An empty value would pass for an option that was not given.
std::string EmptyReason(const std::string& value) {
    return value.empty() ? "the value is empty" : "";
}

}  // namespace

void Options::Word(const char* name, std::string& word, const char* description) {
    Add(m_App, name, word, description)->required();
}

void Options::Words(const char* name, std::vector<std::string>& words, const char* description) {
    Add(m_App, name, words, description)->required();
}

void Options::OptionalWords(const char* name, std::vector<std::string>& words,
                            const char* description) {
    Add(m_App, name, words, description);
}

void Options::Option(const char* name, std::string& value, const char* description,
                     const char* type) {
    Add(m_App, name, value, description, type)->check(EmptyReason);
}

void Options::RequiredOption(const char* name, std::string& value, const char* description,
                             const char* type) {
    Add(m_App, name, value, description, type)->required()->check(EmptyReason);
}

void Options::Triple(const char* name, std::vector<std::string>& values, const char* description,
                     const char* types) {
    Add(m_App, name, values, description, types)->expected(3);
}

void Options::Flag(const char* name, bool& isGiven, const char* description) {
    m_App.add_flag(name, isGiven, description);
}

void Options::Json(bool& isGiven) {
    Flag("--json", isGiven, "Print JSON for a program to read");
}

void Options::Exclude(const char* name, const char* other) {
    m_App.get_option(name)->excludes(m_App.get_option(other));
}

void Options::Need(const char* name, const char* needed) {
    m_App.get_option(name)->needs(m_App.get_option(needed));
}

Family Family::AddFamily(const char* name, const char* description) {
    CLI::App* const family = m_App.add_subcommand(name, description);
    family->require_subcommand(1);
    return {*family, m_Chosen};
}

// The parser calls back while it still reads the line; the command runs after all of it was
// understood.
Options Family::AddCommand(const char* name, const char* description, Runner run) {
    CLI::App* const command = m_App.add_subcommand(name, description);
    command->callback([&chosen = m_Chosen, run = std::move(run)] { chosen = run; });
    return Options(*command);
}

}  // namespace HOST
