// Documents as devices send them: set for reading, and what a refusal says.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Document.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

#include <json/value.h>

#include "CapabilitySet/XmlText.h"
#include "Tool/Failure.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/terminal/Terminal.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

constexpr std::array<std::string_view, 5> kStatusMembers{"statusCode", "statusString",
                                                         "subStatusCode", "errorCode", "errorMsg"};

/// No document at all is most often JSON.
bool MayBeXml(const std::string& document)
{
    return document.find('<') != std::string::npos;
}

/// A member of a status document that is a JSON object.
std::optional<std::string> JsonMember(const Json::Value& status, std::string_view name)
{
    const Json::Value* const member = status.find(name.data(), name.data() + name.size());
    if (member == nullptr || member->isObject() || member->isArray() || member->isNull()) {
        return std::nullopt;
    }
    return member->asString();
}

std::optional<std::string> XmlMember(const CapabilitySet::AbilityElement& root,
                                     std::string_view name)
{
    const CapabilitySet::AbilityElement& member = root.Find(name);
    return member ? std::optional(Trimmed(member.text)) : std::nullopt;
}

template <class Find>
std::vector<std::pair<std::string, std::string>> Members(Find&& find)
{
    std::vector<std::pair<std::string, std::string>> members;
    for (const std::string_view name : kStatusMembers) {
        if (std::optional<std::string> value = find(name); value && !value->empty()) {
            members.emplace_back(name, std::move(*value));
        }
    }
    return members;
}

}  // namespace

std::string Pretty(const std::string& document)
{
    if (MayBeXml(document)) {
        if (std::string text = CapabilitySet::IndentedXml(document); !text.empty()) {
            return text;
        }
    }
    Json::Value value;
    const bool isJson = ReadJson(document, value) && (value.isObject() || value.isArray());
    return isJson ? Dump(value, JsonText::Utf8) : document;
}

bool IsDocument(const std::string& text)
{
    Json::Value value;
    return (MayBeXml(text) && CapabilitySet::ElementsOf(text)) ||
           (ReadJson(text, value) && (value.isObject() || value.isArray()));
}

bool IsBinary(const std::string& document)
{
    return std::ranges::any_of(document, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        constexpr std::string_view kOfTexts = "\t\n\v\f\r\b\033";
        return byte < 0x20 && kOfTexts.find(c) == std::string_view::npos;
    });
}

void PrintDocument(const std::string& document)
{
    if (!IsTerminal(stdout)) {
        Print(document);
        return;
    }
    if (IsBinary(document)) {
        throw Failure("the answer is binary (" + std::to_string(document.size()) +
                      " bytes) and would spoil the terminal: send it to a file with \"> FILE\"");
    }
    std::string text;
    text.reserve(document.size());
    for (std::size_t i = 0; i < document.size(); ++i) {
        // Lines of devices often end with a carriage return, which is no attack.
        if (document[i] != '\r' || i + 1 == document.size() || document[i + 1] != '\n') {
            text += document[i];
        }
    }
    Print(Harmless(text, true));
    if (!text.empty() && text.back() != '\n') {
        Print("\n");
    }
}

std::vector<std::pair<std::string, std::string>> ReadStatus(const std::string& document)
{
    if (MayBeXml(document)) {
        if (const auto root = CapabilitySet::ElementsOf(document)) {
            return Members([&root](std::string_view name) { return XmlMember(root, name); });
        }
    }
    Json::Value value;
    if (!ReadJson(document, value) || !value.isObject()) {
        return {};
    }
    return Members([&value](std::string_view name) { return JsonMember(value, name); });
}

std::string ReadInput(const std::string& file, std::size_t largest)
{
    const bool isStdin = file == "-";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(
        isStdin ? nullptr : std::fopen(file.c_str(), "rb"),
        [](std::FILE* each) { return std::fclose(each); });
    std::FILE* const input = isStdin ? stdin : opened.get();
    std::string bytes;
    bool isGood = input != nullptr;
    std::array<char, 65536> piece{};
    while (isGood) {
        const std::size_t size = std::fread(piece.data(), 1, piece.size(), input);
        if (size > largest - bytes.size()) {
            throw Failure((isStdin ? "the standard input" : file) + " is larger than " +
                          std::to_string(largest >> 20) + " MiB");
        }
        bytes.append(piece.data(), size);
        if (size < piece.size()) {
            isGood = std::ferror(input) == 0;
            break;
        }
    }
    if (!isGood) {
        throw Failure("cannot read " + (isStdin ? "the standard input" : file) + ": " +
                      std::strerror(errno));  // NOLINT(concurrency-mt-unsafe): one thread
    }
    return bytes;
}

}  // namespace Tool
