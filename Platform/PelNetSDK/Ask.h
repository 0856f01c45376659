// One call of the interface: ask a session, and put the answer into the caller's buffers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <stdexcept>

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
    std::size_t limit = 0;   ///< the largest answer to read, if the buffer is smaller; see Limits.h
    void* status = nullptr;  ///< where a status document goes, or null
    unsigned statusSize = 0;
    unsigned* returned = nullptr;    ///< receives the answer's size, or the size required; or null
    bool returnsStatusSize = false;  ///< `returned` also receives the size of a status document

    /// Whether each size comes with a buffer.
    [[nodiscard]] bool Sound() const
    {
        return (buffer != nullptr || size == 0) && (status != nullptr || statusSize == 0);
    }
};

/// Records the calling thread's failure; returns 0, as a failed call does.
int Fail(unsigned error) noexcept;

/// Asks the device and fills the space. Non-zero on success, otherwise the last error is set.
int Ask(int userID, RequestKind kind, const TransportRequest& request, const AnswerSpace& space);

/// Runs the body of an interface function. No exception leaves it.
template <class Body>
int Guarded(Body&& body, int failed = 0) noexcept
{
    try {
        return body();
    } catch (const std::invalid_argument&) {
        Fail(NET_ORB_PARAMETER_ERROR);
        return failed;
    } catch (...) {
        Fail(NET_ORB_ALLOC_RESOURCE_ERROR);
        return failed;
    }
}

}  // namespace PelNet
