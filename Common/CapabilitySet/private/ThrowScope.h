// Decides where running out of memory ends: in the reader that meets it, or in what it is part of.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace CapabilitySet
{

/// While one exists, the readers and writers on this thread let exceptions such as std::bad_alloc
/// through, because they work on a part of an operation or of a larger document, which then fails
/// as a whole. Without one they stop and keep what they have, since a client called them.
class ThrowScope
{
public:
    ThrowScope() { outermost_ += depth_++ == 0 ? 1U : 0U; }
    ~ThrowScope() { --depth_; }
    ThrowScope(const ThrowScope&) = delete;
    ThrowScope& operator=(const ThrowScope&) = delete;

    [[nodiscard]] static bool Active() { return depth_ > 0; }

    /// Counts the outermost scopes of this thread: the same for everything in one document.
    [[nodiscard]] static unsigned int Outermost() { return outermost_; }

private:
    inline static constinit thread_local int depth_ = 0;
    inline static constinit thread_local unsigned int outermost_ = 0;
};

}  // namespace CapabilitySet
