// The basic capability record, its query, and the cache of 3D positioning.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/BasicCapability.h"

#include "CapabilitySet/private/KeepFirstCache.h"
#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/XmlFields.h"

namespace CapabilitySet
{
namespace
{

using PtzCache = KeepFirstCache<int, bool>;

PtzCache& Support3DPTZ()
{
    static PtzCache cache;
    return cache;
}

/// The key's number: the two strings identify a device, not a channel.
constexpr int kWholeDevice = 0;

}  // namespace

void RS485OfBC::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void ZoneNum::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void TriggerNum::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void Sensor::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void HardwareCapability::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void LocalVout::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void NeedReboot::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void SoftwareCapability::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void BasicCapability::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE);
}

void BasicCapability::Parse(_xmlNode* element)
{
    xml::ParseNode(*this, element == nullptr ? nullptr : element->children);
}

bool BasicCapability::GetBasicCapability(BasicCapability& out, unsigned int& err, const int userID)
{
    static constexpr query::Policy kPolicy{.growth = query::kDeviceAbility.growth,
                                           .limit = query::LimitReport::TraceAndTag,
                                           .tracedAs = "BasicCapability"};
    return query::AskDeviceAbility(
        out, err, userID, CAPABILITYSET_HERE, 1, [] { return std::string(); }, kPolicy);
}

bool BasicCapability::SaveIsSupper3DPTZAbility(bool value, const std::string& first,
                                               const std::string& second)
{
    return Support3DPTZ().Save(value, first, second, kWholeDevice);
}

bool BasicCapability::GetIsSupper3DPTZAbility(bool& value, const std::string& first,
                                              const std::string& second)
{
    return Support3DPTZ().Get(value, first, second, kWholeDevice);
}

}  // namespace CapabilitySet
