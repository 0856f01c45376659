// Runs the command-line tool in a process of its own, without a terminal.
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

/// Runs in the child and never returns.
[[noreturn]] void Become(const TemporaryFolder& folder, const std::vector<std::string>& arguments,
                         const Environment& environment)
{
    setsid();
    Redirect(folder.File("in"), O_RDONLY, STDIN_FILENO);
    Redirect(folder.File("out"), O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    Redirect(folder.File("err"), O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
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
    std::ofstream(folder_.File("in"), std::ios::binary) << input;
    // A path names another program.
    const bool isProgram = !arguments.empty() && arguments.front().starts_with('/');
    const std::vector<std::string> words = isProgram ? arguments : WithTool(arguments);
    process_ = fork();
    if (process_ == 0) {
        Become(folder_, words, environment);
    }
}

ToolProcess::~ToolProcess()
{
    if (process_ > 0) {
        Signal(SIGKILL);
        waitpid(process_, nullptr, 0);
    }
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
        out = Content(folder_.File("out"));
    }
    return out;
}

ToolResult ToolProcess::Wait()
{
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
    const int exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return {exitCode, Content(folder_.File("out")), Content(folder_.File("err"))};
}

ToolResult RunTool(const std::vector<std::string>& arguments, const Environment& environment,
                   const std::string& input)
{
    return ToolProcess(arguments, environment, input).Wait();
}

ToolResult RunShell(const std::string& line)
{
    const TemporaryFolder folder;
    return ToolProcess({"/bin/sh", "-c", line},
                       {{"CAPSET", CAPSET_PROGRAM}, {"FOLDER", folder.File("")}})
        .Wait();
}

}  // namespace TestSupport
