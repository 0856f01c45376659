// One call of the interface: a question to a session, its answer into the caller's buffers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>
#include <new>

#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/LastError.h"
#include "PelNetSDK/Refusal.h"
#include "PelNetSDK/Transport.h"

namespace PelNet
{

/// Where the caller wants the answer. The caller owns both buffers.
struct AnswerSpace
{
    void* buffer = nullptr;  ///< null with size 0: no answer is wanted
    unsigned size = 0;
    void* status = nullptr;  ///< where a status document goes, or null
    unsigned statusSize = 0;
    unsigned* returned = nullptr;    ///< bytes of the answer, or needed; or null
    bool returnsStatusSize = false;  ///< `returned` also tells the length of a status document

    /// Whether each size has its buffer.
    [[nodiscard]] bool Sound() const
    {
        return (buffer != nullptr || size == 0) && (status != nullptr || statusSize == 0);
    }
};

/// Records the failure of the calling thread; returns 0, what a failed call returns.
int Fail(unsigned error) noexcept;

/// Asks the device and fills the space; non-zero on success, else the last error is set.
int Ask(int userID, RequestKind kind, const TransportRequest& request, const AnswerSpace& space);

/// Runs the body of an interface function; no exception leaves it.
template <class Body>
int Guarded(Body&& body, int failed = 0) noexcept
{
    try {
        return body();
    } catch (...) {
        Fail(NET_ORB_ALLOC_RESOURCE_ERROR);
        return failed;
    }
}

}  // namespace PelNet
