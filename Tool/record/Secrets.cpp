// Passwords and keys in records.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Secrets.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;

namespace
{

constexpr std::array<std::string_view, 8> kSecretNames{
    "sharedKey", "preSharedKey", "wepKey", "encryptionKey",
    "password",  "passphrase",   "psk",    "privateKey",
};

bool IsSecret(const RecordNode& node)
{
    const bool isKnown = std::ranges::any_of(
        kSecretNames, [&node](std::string_view name) { return SameIgnoringCase(name, node.name); });
    // Ability documents say under such a name whether a device takes one, or of which length.
    return isKnown && node.kind == RecordNode::Kind::Text && !node.text.empty() &&
           node.text != "true" && node.text != "false";
}

}  // namespace

void HideSecrets(RecordNode& record)
{
    if (IsSecret(record)) {
        record.text = "(hidden)";
    }
    for (RecordNode& child : record.children) {
        HideSecrets(child);
    }
}

}  // namespace Tool
