// The last error of the calling thread.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/Error.h"

namespace Keel::Error
{

namespace
{

/// Set when the thread's last error is gone: static objects outlive that of the main thread.
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
