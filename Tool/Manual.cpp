// Writes the manual pages of capset into a folder, at build time.
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <fstream>
#include <string>

#include "Tool/command/Commands.h"
#include "Tool/commandline/ManualPage.h"

namespace
{

constexpr const char* kMore = R"(.SH DEVICES
.TP
\fBsim:\fIPROFILE\fR
a simulated device in the same process, such as sim:dome
.TP
\fBhttp://\fR[\fIUSER\fB@\fR]\fIHOST\fR[\fB:\fIPORT\fR], \fBhttps://\fR...
a device on the network
.SH ENVIRONMENT
.TP
.B CAPSET_PASSWORD
The user's password. If it is unset or empty, capset asks for one on the terminal.
.TP
.B NO_COLOR
No colours, unless \-\-color always is given.
.TP
.B TERM
dumb: no colours.
.SH EXIT STATUS
.TP
.B 0
The device answered.
.TP
.B 1
The device refused or failed, or a document cannot be read.
.TP
.B 2
The command line makes no sense, or a password is missing.
.TP
.B 128 and more
A signal ended the program: 130 after Ctrl\-C.
)";

bool Write(const std::string& file, const std::string& text)
{
    std::ofstream stream(file);
    stream << text;
    stream.close();
    return stream.good();
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("Usage: capset_manual FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = std::string(argv[1]) + "/";
    const std::string version = "capset " CAPSET_VERSION;
    Tool::CommonOptions common;
    Tool::Command program("capset", Tool::kProgramSummary);
    Tool::DeclareCommands(program, common);
    bool isWritten = Write(folder + "capset.1", Tool::ManualPage(program, version, kMore));
    for (const auto& each : program.Commands()) {
        isWritten =
            Write(folder + "capset-" + each->Name() + ".1", Tool::ManualPage(*each, version)) &&
            isWritten;
    }
    if (!isWritten) {
        std::perror("capset_manual: cannot write the manual pages");
    }
    return isWritten ? 0 : 1;
}
