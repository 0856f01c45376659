// The last error of the calling thread.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/Error.h"

namespace Keel::Error
{

namespace
{

ErrorCode& LastError()
{
    thread_local ErrorCode lastError;
    return lastError;
}

}  // namespace

void SetLastError(const ErrorCode& error)
{
    LastError() = error;
}

const ErrorCode& GetLastError()
{
    return LastError();
}

}  // namespace Keel::Error
