// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/files/file_replacement.h>

#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <support/temporary_folder.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// The exit code of a program, or -1 when a signal ended it, and all that it printed.
struct ProgramResult {
    int Code = -1;
    std::string Out;
    std::string Err;
};

/// The arguments of a command line; one text is split at its blanks.
struct Words : std::vector<std::string> {
    Words(std::initializer_list<std::string> words) : vector(words) {}
    Words(const char* line) : Words(std::string(line)) {}
    Words(const std::string& line) {
        std::istringstream words(line);
        assign(std::istream_iterator<std::string>(words), {});
    }
};

/// Runs the command line in a folder of its own, removed with it.
class Program {
public:
    ProgramResult Run(const Words& arguments) const {
        const pid_t child = ::fork();
        if (child == 0) {
            Redirect(m_StandardOutput, STDOUT_FILENO);
            Redirect(m_Output.File("err"), STDERR_FILENO);
            if (m_LargestFile > 0) {
                const rlimit limit{m_LargestFile, m_LargestFile};
                std::signal(SIGXFSZ, SIG_IGN);
                ::setrlimit(RLIMIT_FSIZE, &limit);
            }
            Execute(arguments);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(m_Output.File("out")),
                ReadAll(m_Output.File("err"))};
    }

    /// For a child process: becomes the program, in the folder.
    [[noreturn]] void Execute(const Words& arguments) const {
        std::vector<char*> words{const_cast<char*>("marlin")};
        for (const std::string& argument : arguments) {
            words.push_back(const_cast<char*>(argument.c_str()));
        }
        words.push_back(nullptr);
        if (::chdir(m_Folder.File("").c_str()) == 0) {
            ::execv(MARLIN_PROGRAM, words.data());
        }
        ::_exit(127);
    }

    /// Where later runs print to, a file or a device.
    void SetStandardOutput(const std::string& path) { m_StandardOutput = path; }
    /// Later runs cannot write beyond so many bytes of a file, as on a full disk.
    void SetLargestFile(unsigned long bytes) { m_LargestFile = bytes; }

    std::string Write(const std::string& name, std::string_view bytes) const {
        return m_Folder.Write(name, bytes);
    }
    [[nodiscard]] std::string Read(const std::string& name) const {
        return ReadAll(m_Folder.File(name));
    }
    [[nodiscard]] std::string Path(const std::string& name) const { return m_Folder.File(name); }
    [[nodiscard]] int NumFiles() const { return m_Folder.NumFiles(); }

    static std::string ReadAll(const std::string& path) {
        std::string bytes;
        return MARLINSUITE::ReadFile(path, bytes).Empty() ? bytes : "(no file)";
    }

private:
    static void Redirect(const std::string& path, int descriptor) {
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        ::dup2(file, descriptor);
    }

    TemporaryFolder m_Folder;
    TemporaryFolder m_Output;
    std::string m_StandardOutput = m_Output.File("out");
    unsigned long m_LargestFile = 0;
};
