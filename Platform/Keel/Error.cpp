// The last error of the calling thread.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/Error.h"

namespace Keel::Error
{

namespace
{

/// Set once the thread's last error is destroyed. Static objects outlive the main thread's.
thread_local bool isGone = false;

struct LastError
{
    LastError() = default;
    ~LastError() { isGone = true; }
    LastError(const LastError&) = delete;
    LastError& operator=(const LastError&) = delete;

    ErrorCode code;
};

LastError& ThreadsLastError()
{
    thread_local LastError lastError;
    return lastError;
}

}  // namespace

void SetLastError(const ErrorCode& error)
{
    if (!isGone) {
        ThreadsLastError().code = error;
    }
}

const ErrorCode& GetLastError()
{
    static const ErrorCode* const none = new ErrorCode;
    return isGone ? *none : ThreadsLastError().code;
}

}  // namespace Keel::Error
