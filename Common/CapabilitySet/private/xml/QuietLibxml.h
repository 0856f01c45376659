// Keeps libxml2 quiet on a thread, and tells whether it ran out of memory.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/globals.h>
#include <libxml/xmlerror.h>

namespace CapabilitySet::xml
{

/// While one lives, nothing that libxml2 reports on this thread reaches the client's handlers or
/// stderr. Starts with the last error forgotten.
class QuietLibxml
{
public:
    QuietLibxml() : handler_(xmlStructuredError), context_(xmlStructuredErrorContext)
    {
        xmlSetStructuredErrorFunc(nullptr, Note);
        xmlResetLastError();
        ranOutOfMemory_ = false;
    }
    ~QuietLibxml() { xmlSetStructuredErrorFunc(context_, handler_); }
    QuietLibxml(const QuietLibxml&) = delete;
    QuietLibxml& operator=(const QuietLibxml&) = delete;

    /// Whether an allocation failed since the start: many functions go on without what they could
    /// not copy, and say so nowhere else.
    [[nodiscard]] static bool RanOutOfMemory() { return ranOutOfMemory_; }

    /// The handler: the last error alone would not do, since any later warning takes its place.
    static void Note(void* /*context*/, xmlErrorPtr error)
    {
        ranOutOfMemory_ = ranOutOfMemory_ || error->code == XML_ERR_NO_MEMORY;
    }

private:
    static inline thread_local bool ranOutOfMemory_ = false;
    xmlStructuredErrorFunc handler_;
    void* context_;
};

}  // namespace CapabilitySet::xml
