// Runs the command-line tool as a process of its own, without a terminal.
// SPDX-License-Identifier: Apache-2.0
#include "support/ToolRun.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace TestSupport
{

namespace
{

std::string Content(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void Redirect(const std::string& file, int flags, int descriptor)
{
    const int opened = open(file.c_str(), flags, 0600);
    if (opened < 0 || dup2(opened, descriptor) < 0) {
        _exit(126);
    }
}

/// The child's side: never returns.
[[noreturn]] void Become(const std::string& directory, const std::vector<std::string>& arguments,
                         const Environment& environment)
{
    setsid();
    Redirect(directory + "/in", O_RDONLY, STDIN_FILENO);
    Redirect(directory + "/out", O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    Redirect(directory + "/err", O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
    unsetenv("CAPSET_PASSWORD");
    for (const auto& [name, value] : environment) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> words;
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    execv(words.front(), words.data());
    _exit(127);
}

std::vector<std::string> WithTool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), CAPSET_PROGRAM);
    return arguments;
}

}  // namespace

ToolProcess::ToolProcess(const std::vector<std::string>& arguments, const Environment& environment,
                         const std::string& input)
{
    std::string pattern = (std::filesystem::temp_directory_path() / "capset-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary directory");
    }
    directory_ = pattern;
    std::ofstream(directory_ + "/in", std::ios::binary) << input;
    // A word with a slash is a program of its own.
    const bool isProgram = !arguments.empty() && arguments.front().starts_with('/');
    const std::vector<std::string> words = isProgram ? arguments : WithTool(arguments);
    process_ = fork();
    if (process_ == 0) {
        Become(directory_, words, environment);
    }
}

ToolProcess::~ToolProcess()
{
    if (process_ > 0) {
        Signal(SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    std::filesystem::remove_all(directory_);
}

void ToolProcess::Signal(int signal) const
{
    kill(process_, signal);
}

std::string ToolProcess::OutputWith(const std::string& text) const
{
    using namespace std::chrono_literals;
    std::string out;
    for (int i = 0; i < 1000 && out.find(text) == std::string::npos; ++i) {
        std::this_thread::sleep_for(10ms);
        out = Content(directory_ + "/out");
    }
    return out;
}

ToolResult ToolProcess::Wait()
{
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
    const int exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return {exitCode, Content(directory_ + "/out"), Content(directory_ + "/err")};
}

ToolResult RunTool(const std::vector<std::string>& arguments, const Environment& environment,
                   const std::string& input)
{
    return ToolProcess(arguments, environment, input).Wait();
}

ToolResult RunShell(const std::string& line)
{
    return ToolProcess({"/bin/sh", "-c", line}, {{"CAPSET", CAPSET_PROGRAM}}).Wait();
}

}  // namespace TestSupport
