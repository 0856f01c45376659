// capset: asks a video-security device what it can do, and shows the answer.
// SPDX-License-Identifier: Apache-2.0
#include <csignal>
#include <exception>
#include <new>

#include "Tool/Failure.h"
#include "Tool/command/Commands.h"
#include "Tool/commandline/CommandLine.h"
#include "Tool/terminal/Log.h"
#include "Tool/terminal/Text.h"

namespace
{

using namespace Tool;

int Run(int argc, char** argv)
{
    CommonOptions common;
    Command program("capset", kProgramSummary);
    DeclareCommands(program, common);
    return RunCommandLine(program, argc, argv, "capset " CAPSET_VERSION, [&common] {
        if (!common.logLevel.empty()) {
            LogToStderr(common.logLevel);
        }
    });
}

int RunGuarded(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const Failure& failure) {
        Complain(failure.what());
        return failure.Code();
    } catch (const std::bad_alloc&) {
        Complain("not enough memory");
    } catch (const std::exception& error) {
        Complain(error.what());
    }
    return kFailed;
}

}  // namespace

int main(int argc, char** argv)
{
    // When the reader of a pipe goes away, printing fails and the program ends in good order.
    std::signal(SIGPIPE, SIG_IGN);
    UseUtf8Widths();
    const int result = RunGuarded(argc, argv);
    return FinishOutput() ? result : kFailed;
}
