// Silences libxml2 on a thread and detects when it runs out of memory.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/globals.h>
#include <libxml/xmlerror.h>

namespace CapabilitySet::xml
{

/// While one exists, nothing libxml2 reports on this thread reaches the client's handlers or
/// stderr. Resets the last error first.
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

    /// Whether an allocation failed since the start. Many libxml2 functions go on without what they
    /// could not copy and report it nowhere else.
    [[nodiscard]] static bool RanOutOfMemory() { return ranOutOfMemory_; }

    /// The error handler. Checking the last error is not enough: a later warning replaces it.
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
