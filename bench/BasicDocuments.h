// Basic capability documents of several shapes, generated from the record's field list.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <type_traits>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/private/xml/XmlFields.h"

namespace Bench
{

/// Which of the record's elements a document contains, and what else.
struct Shape
{
    int keptOfFive = 5;       ///< how many of every five elements
    int unknownElements = 0;  ///< elements the record does not know, spread over the document
};

/// Visits a field list and writes an element for each field.
class DocumentWriter
{
public:
    explicit DocumentWriter(const Shape& shape) : shape_(shape) {}

    template <class Member, class... How>
    void operator()(const std::string& name, Member& member, How... /*how*/)
    {
        if constexpr (std::is_same_v<Member, CapabilitySet::MinMaxElement>) {
            Leaf(name, R"( min="1" max="64"/>)");
        } else if constexpr (std::is_same_v<Member, CapabilitySet::OptElement<std::string>>) {
            Leaf(name, R"( opt="HDMI1,VGA,CVBS"/>)");
        } else if constexpr (CapabilitySet::HasFields<Member>) {
            Nested(name, member);
        } else {
            Leaf(name, '>' + ValueOf(member) + "</" + name + '>');
        }
    }

    /// The document of a root record.
    template <class Record>
    static std::string Write(const std::string& root, Shape shape)
    {
        DocumentWriter writer(shape);
        Record record;
        Record::Fields(record, writer);
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + root + " version=\"2.0\">" +
               writer.text_ + "\n</" + root + ">\n";
    }

private:
    static std::string ValueOf(bool /*member*/) { return "true"; }
    static std::string ValueOf(int /*member*/) { return "16"; }
    static std::string ValueOf(unsigned int /*member*/) { return "3"; }
    static std::string ValueOf(const std::string& /*member*/) { return "V2.0"; }

    void Line(const std::string& rest) { text_ += '\n' + std::string(2 * depth_, ' ') + rest; }

    void Leaf(const std::string& name, const std::string& rest)
    {
        // Element names must not begin with a digit.
        if (name.front() >= '0' && name.front() <= '9') {
            return;
        }
        if (leaves_++ % 5 < shape_.keptOfFive) {
            Line('<' + name + rest);
        }
        if (leaves_ % 2 == 0 && unknown_ < shape_.unknownElements) {
            const std::string number = std::to_string(++unknown_);
            Line("<isSupportFuture" + number + ">true</isSupportFuture" + number + '>');
        }
    }

    template <class Record>
    void Nested(const std::string& name, Record& record)
    {
        Line('<' + name + '>');
        ++depth_;
        Record::Fields(record, *this);
        --depth_;
        Line("</" + name + '>');
    }

    Shape shape_;
    std::string text_;
    std::size_t depth_ = 1;
    int leaves_ = 0;
    int unknown_ = 0;
};

/// A basic capability document of this shape.
inline std::string BasicDocument(Shape shape)
{
    return DocumentWriter::Write<CapabilitySet::BasicCapability>("BasicCapability", shape);
}

}  // namespace Bench
