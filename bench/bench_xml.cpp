// Reading a capability record, compared with libxml2's bare parse of the same document.
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <string>

#include <libxml/parser.h>

#include "BasicDocuments.h"
#include "Comparison.h"

namespace
{

using CapabilitySet::BasicCapability;
using Tree = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

Tree Parsed(const std::string& text)
{
    return {xmlParseDoc(reinterpret_cast<const xmlChar*>(text.c_str())), &xmlFreeDoc};
}

/// Parses and frees; true if there was a document.
bool BareParse(const std::string& text)
{
    return Parsed(text) != nullptr;
}

bool ReadTree(const xmlDoc* document)
{
    BasicCapability record;
    record.Parse(xmlDocGetRootElement(document));
    return record.valid;
}

/// A document whose hardware record is surrounded by unknown elements.
std::string ManySiblings(std::size_t bytes)
{
    std::string text = "<BasicCapability><HardwareCapability><HardwareVersion>1</HardwareVersion>";
    for (int i = 0; text.size() < bytes; ++i) {
        const std::string name = "isSupportFuture" + std::to_string(i % 97);
        text.append("\n<").append(name).append(">true</").append(name).append(">");
    }
    return text + "<RAIDType>1</RAIDType></HardwareCapability></BasicCapability>";
}

void AddDocument(const std::string& shape, const std::string& text)
{
    constexpr int kRounds = 20;
    const auto bare = [text] { return BareParse(text); };
    const auto parse = [text] {
        BasicCapability record;
        record.Parse(text);
        return record.valid;
    };
    Bench::Compare("Parse: " + shape + " document", kRounds, bare, parse);

    const std::shared_ptr<xmlDoc> tree = Parsed(text);
    const auto read = [tree] { return ReadTree(tree.get()); };
    Bench::Compare("read the tree: " + shape + " document", kRounds, bare, read);
}

/// The large trees, created when the first of the two rows runs.
struct Siblings
{
    const std::string text = ManySiblings(20'000'000);
    const std::shared_ptr<xmlDoc> few = Parsed(ManySiblings(5'000'000));
    const std::shared_ptr<xmlDoc> many = Parsed(text);
};

const Siblings& LargeTrees()
{
    static const Siblings siblings;
    return siblings;
}

void AddManySiblings()
{
    // Long enough not to need a warm-up, but the trees must exist before.
    const auto makeTrees = [] { return LargeTrees().text.size(); };
    const auto parse = [] { return BareParse(LargeTrees().text); };
    const auto readFew = [] { return ReadTree(LargeTrees().few.get()); };
    const auto readMany = [] { return ReadTree(LargeTrees().many.get()); };
    Bench::AddSide("20 MB of unknown siblings", "baseline", 1, parse, makeTrees);
    Bench::AddSide("20 MB of unknown siblings", "ours", 1, readMany, makeTrees);
    Bench::AddSide("four times the unknown siblings", "baseline", 1, readFew, makeTrees);
    Bench::AddSide("four times the unknown siblings", "ours", 1, readMany, makeTrees);
}

}  // namespace

int main(int argc, char** argv)
{
    AddDocument("full", Bench::BasicDocument({}));
    AddDocument("sparse", Bench::BasicDocument({.keptOfFive = 2}));
    AddDocument("wide", Bench::BasicDocument({.unknownElements = 51}));
    AddManySiblings();
    return Bench::Run(argc, argv);
}
