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
        xmlSetStructuredErrorFunc(nullptr, Ignore);
        xmlResetLastError();
    }
    ~QuietLibxml() { xmlSetStructuredErrorFunc(context_, handler_); }
    QuietLibxml(const QuietLibxml&) = delete;
    QuietLibxml& operator=(const QuietLibxml&) = delete;

    /// Whether an allocation failed since the start: many functions go on without what they could
    /// not copy, and say so nowhere else.
    [[nodiscard]] static bool RanOutOfMemory()
    {
        const xmlError* const error = xmlGetLastError();
        return error != nullptr && error->code == XML_ERR_NO_MEMORY;
    }

    static void Ignore(void* /*context*/, xmlErrorPtr /*error*/) {}

private:
    xmlStructuredErrorFunc handler_;
    void* context_;
};

}  // namespace CapabilitySet::xml
