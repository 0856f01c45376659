// Finds all fields of a record in one pass over the children of an element.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/FieldIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace CapabilitySet::xml
{
namespace
{

const char* NameOf(const xmlNode* element)
{
    return reinterpret_cast<const char*>(element->name);
}

bool Same(const char* a, const char* b)
{
    return *a == *b && std::strcmp(a, b) == 0;
}

}  // namespace

void FieldIndex::Add(const char* name, bool repeated)
{
    fields_.push_back({name, repeated});
}

void FieldIndex::Finish()
{
    slots_.assign(std::bit_ceil(2 * fields_.size() + 1), {});
    for (std::size_t field = 0; field < fields_.size(); ++field) {
        const std::uint32_t hash = HashOf(fields_[field].name);
        std::size_t at = hash & (slots_.size() - 1);
        while (slots_[at].field != 0) {
            at = (at + 1) & (slots_.size() - 1);
        }
        slots_[at] = {hash, static_cast<std::uint32_t>(field + 1)};
    }
}

/// Hashes the length and both ends of the name, where the names of a record differ. Other names
/// that collide cost one comparison each.
std::uint32_t FieldIndex::HashOf(const char* name)
{
    const std::size_t length = std::strlen(name);
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    if (length >= sizeof first) {
        std::memcpy(&first, name, sizeof first);
        std::memcpy(&last, name + length - sizeof last, sizeof last);
    } else {
        for (std::size_t i = 0; i < length; ++i) {
            first = first << 8U | static_cast<unsigned char>(name[i]);
        }
    }
    const std::uint64_t mixed = (first ^ std::rotl(last, 29) ^ length) * 0x9E3779B97F4A7C15U;
    return static_cast<std::uint32_t>(mixed >> 32U);
}

std::size_t FieldIndex::Find(const char* name) const
{
    const std::uint32_t hash = HashOf(name);
    for (std::size_t at = hash & (slots_.size() - 1); slots_[at].field != 0;
         at = (at + 1) & (slots_.size() - 1)) {
        if (slots_[at].hash == hash && Same(fields_[slots_[at].field - 1].name, name)) {
            return slots_[at].field - 1;
        }
    }
    return kNone;
}

FieldMatches::FieldMatches(const FieldIndex& index, xmlNode* firstChild) : index_(index)
{
    matches_ = inline_.data();
    if (index.Size() > kInline) {
        more_.resize(index.Size());
        matches_ = more_.data();
    }
    std::fill_n(matches_, index.Size(), nullptr);
    if (!MatchInOrder(firstChild)) {
        MatchByCursor(firstChild);
    }
}

/// Matches each child to the field of its name. False if a field appears after one that comes later
/// in the record; the cursor, looking for the earlier field first, then skips some.
bool FieldMatches::MatchInOrder(xmlNode* firstChild)
{
    std::size_t next = 0;
    for (xmlNode* node = firstChild; node != nullptr; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) {
            continue;
        }
        const bool expected = next < index_.Size() && Same(index_.NameOf(next), NameOf(node));
        const std::size_t field = expected ? next : index_.Find(NameOf(node));
        if (field == FieldIndex::kNone) {
            continue;
        }
        if (field >= next) {
            matches_[field] = node;
            next = field + 1;
        } else if (matches_[field] == nullptr || (index_.IsRepeated(field) && field + 1 != next)) {
            return false;
        }
    }
    return true;
}

/// Finds what a cursor finds that searches for each name from where the last one was found. It
/// never searches for a name that does not follow, so each child is passed once.
void FieldMatches::MatchByCursor(xmlNode* firstChild)
{
    std::vector<std::size_t> last(index_.Size());  // last position of each name, from 1
    std::size_t ordinal = 0;
    for (const xmlNode* child = firstChild; child != nullptr; child = child->next) {
        if (child->type != XML_ELEMENT_NODE) {
            continue;
        }
        ++ordinal;
        if (const std::size_t field = index_.Find(NameOf(child)); field != FieldIndex::kNone) {
            last[field] = ordinal;
        }
    }
    xmlNode* node = firstChild;
    std::size_t passed = 0;
    for (std::size_t field = 0; field < index_.Size(); ++field) {
        xmlNode*& match = matches_[field];
        match = nullptr;
        while (passed < last[field]) {
            const bool element = node->type == XML_ELEMENT_NODE;
            if (element && match == nullptr && Same(index_.NameOf(field), NameOf(node))) {
                match = node;
            }
            node = node->next;
            passed += element ? 1 : 0;
            if (match != nullptr && !index_.IsRepeated(field)) {
                break;
            }
        }
    }
}

}  // namespace CapabilitySet::xml
