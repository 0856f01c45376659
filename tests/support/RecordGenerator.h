// Records with generated values, by their own field lists.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "CapabilitySet/RecordTree.h"

namespace TestSupport
{

/// Makes records whose texts are hard to write: markup, quotes, line ends, characters of every
/// length. Two generators of one seed make the same records, but for the characters that no
/// document can hold, which one of them leaves out.
class RecordGenerator
{
public:
    explicit RecordGenerator(unsigned seed, bool withForbidden = false)
        : random_(seed), withForbidden_(withForbidden)
    {
    }

    template <class Record>
    Record Make()
    {
        Record record;
        Fill(record);
        return record;
    }

private:
    unsigned Below(unsigned bound) { return static_cast<unsigned>(random_()) % bound; }

    template <class Value, std::size_t kSize>
    Value OneOf(const Value (&values)[kSize])
    {
        return values[Below(kSize)];
    }

    void Fill(bool& value) { value = Below(2) == 1; }

    void Fill(int& value)
    {
        using Limits = std::numeric_limits<int>;
        value = OneOf({0, 1, -1, 1234567, Limits::max(), Limits::min()});
    }

    void Fill(double& value) { value = OneOf({0.0, 0.1, -36.6, 1e300, 5e-324, 123456789.125}); }

    void Fill(std::string& value)
    {
        static constexpr const char* kAllowed[] = {"a",
                                                   "&",
                                                   "<",
                                                   ">",
                                                   "]]>",
                                                   "\"",
                                                   "'",
                                                   "&lt;",
                                                   "&#0;",
                                                   " ",
                                                   "\t",
                                                   "\n",
                                                   "\r",
                                                   "\r\n",
                                                   "<![CDATA[",
                                                   "-->",
                                                   "?>",
                                                   "%n",
                                                   "\xC3\xA9",
                                                   "\xC2\x85",
                                                   "\xE4\xB8\xAD",
                                                   "\xEF\xBF\xBD",
                                                   "\xEF\xBF\xBC",
                                                   "\xF0\x9F\x98\x80"};
        static constexpr const char* kForbidden[] = {"\x01", "\x08",         "\x0B",
                                                     "\x1F", "\xEF\xBF\xBE", "\xEF\xBF\xBF"};
        for (unsigned pieces = Below(6); pieces > 0; --pieces) {
            value += OneOf(kAllowed);
            const char* const forbidden = OneOf(kForbidden);
            if (Below(3) == 0 && withForbidden_)
                value += forbidden;
        }
    }

    template <class Item>
    void Fill(std::shared_ptr<Item>& item)
    {
        item = std::make_shared<Item>(Make<Item>());
    }

    template <class Item>
    void Fill(std::vector<Item>& items)
    {
        items.resize(Below(4));
        for (Item& item : items)
            Fill(item);
    }

    template <CapabilitySet::tree::HasFields Record>
    void Fill(Record& record)
    {
        Record::Fields(record, [this](const char* /*name*/, auto& member, auto... /*how*/) {
            this->Fill(member);
        });
    }

    std::mt19937 random_;
    bool withForbidden_;
};

}  // namespace TestSupport
