// Records with generated values, by their own field lists.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <json/value.h>

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
        : next_(
              [random = std::mt19937(seed)]() mutable { return static_cast<unsigned>(random()); }),
          withForbidden_(withForbidden)
    {
    }

    /// Makes records of the numbers that `next` gives, each 0 to 255 or more; with any bytes in
    /// their texts, and any numbers, when asked for.
    explicit RecordGenerator(std::function<unsigned()> next, bool anyBytes)
        : next_(std::move(next)), anyBytes_(anyBytes)
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
    unsigned Below(unsigned bound) { return next_() % bound; }

    template <class Number>
    Number Any()
    {
        std::uint64_t bits = 0;
        for (int byte = 0; byte < 8; ++byte) {
            bits = bits << 8U | Below(256);
        }
        return std::bit_cast<Number>(bits);
    }

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

    void Fill(unsigned& value) { value = OneOf({0U, 1U, 1234567U, ~0U}); }

    void Fill(double& value)
    {
        value = OneOf({0.0, 0.1, -36.6, 1e300, 5e-324, 123456789.125});
        if (anyBytes_) {
            value = Any<double>();
        }
        if (!std::isfinite(value)) {  // no document can hold it
            value = 0;
        }
    }

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
            if (Below(3) == 0 && withForbidden_) {
                value += forbidden;
            }
            if (anyBytes_) {
                value += static_cast<char>(Below(256));
            }
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
        for (Item& item : items) {
            Fill(item);
        }
    }

    void Fill(Json::Value& value)
    {
        std::string text;
        Fill(text);
        value = Below(2) == 0 ? Json::Value(text) : Json::Value(Below(100));
    }

    void Fill(CapabilitySet::OptJsonElement& element)
    {
        Fill(element.opt);
        element.capable = true;
    }

    void Fill(CapabilitySet::MisinfoMinMaxElement& element)
    {
        Fill(element.min);
        Fill(element.max);
    }

    template <CapabilitySet::HasFields Record>
    void Fill(Record& record)
    {
        if constexpr (requires { record.present = true; }) {
            record.present = true;
        }
        Record::Fields(record, [this](const char* /*name*/, auto& member, auto... /*how*/) {
            this->Fill(member);
        });
    }

    std::function<unsigned()> next_;
    bool withForbidden_ = false;
    bool anyBytes_ = false;
};

}  // namespace TestSupport
