// Small changes to XML and JSON documents, to bytes and to structure.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace TestSupport
{

/// Part of a document: its first byte and the one after its last.
struct Span
{
    std::size_t begin;
    std::size_t end;
};

/// An XML element, or a JSON member or entry, and the position of its name.
struct Piece
{
    Span whole;
    std::vector<Span> names{};
};

/// Whatever looks like an element, well-formed or not.
inline std::vector<Piece> XmlPieces(const std::string& text)
{
    std::vector<Piece> pieces;
    std::vector<Piece> open;
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
        const std::size_t end = text.find('>', at);
        const bool closes = text.compare(at, 2, "</") == 0;
        const std::size_t name = at + (closes ? 2 : 1);
        if (end == std::string::npos || std::isalpha(static_cast<unsigned char>(text[name])) == 0) {
            continue;
        }
        const Span span{name, std::min(text.find_first_of(" />\n", name), end)};
        if (!closes) {
            open.push_back({{at, end + 1}, {}});
        }
        if (open.empty()) {
            continue;
        }
        open.back().names.push_back(span);
        open.back().whole.end = end + 1;
        if (closes || text[end - 1] == '/') {
            pieces.push_back(open.back());
            open.pop_back();
        }
    }
    return pieces;
}

inline std::vector<Piece> JsonPieces(const std::string& text)
{
    std::vector<Piece> pieces;
    std::vector<Piece> open;
    Span last{0, 0};  // the last string
    const auto start = [&](std::size_t at) {
        at = std::min(text.find_first_not_of(" \t\n\r", at), text.size());
        open.push_back({{at, at}, {}});
    };
    const auto finish = [&](std::size_t at) {
        if (open.empty()) {
            return;
        }
        open.back().whole.end = at;
        if (open.back().whole.begin < at) {
            pieces.push_back(open.back());
        }
        open.pop_back();
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '"') {
            last = {at, std::min(text.find('"', at + 1), text.size() - 1) + 1};
            at = last.end - 1;
        } else if (c == ':' && !open.empty()) {
            open.back().names.push_back(last);
        } else if (c == '{' || c == '[') {
            start(at + 1);
        } else if (c == ',') {
            finish(at);
            start(at + 1);
        } else if (c == '}' || c == ']') {
            finish(at);
        }
    }
    return pieces;
}

/// Changes documents; the same seed makes the same changes.
class Mutation
{
public:
    Mutation(unsigned seed, bool isJson) : random_(seed), isJson_(isJson) {}

    /// The text with up to three changes.
    std::string Of(std::string text)
    {
        for (std::size_t changes = 1 + Below(3); changes > 0; --changes) {
            Change(text);
        }
        return text;
    }

private:
    std::size_t Below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }

    void Change(std::string& text)
    {
        const std::size_t at = Below(text.size());
        const auto byte = static_cast<char>(Below(256));
        switch (Below(7)) {
            case 0:
                if (!text.empty()) {
                    text[at] = static_cast<char>(text[at] ^ (1 << Below(8)));
                }
                break;
            case 1:
                text.insert(at, 1, Below(2) == 0 ? byte : "<>/&\"'{}[],:-+.e0 \n"[Below(19)]);
                break;
            case 2:
                text.erase(at, 1 + Below(8));
                break;
            case 3:
                ChangeNumber(text);
                break;
            default:
                ChangePieces(text);
        }
    }

    void ChangeNumber(std::string& text)
    {
        static constexpr const char* kExtremes[] = {"0",
                                                    "-1",
                                                    "4294967295",
                                                    "4294967296",
                                                    "2147483647",
                                                    "-2147483649",
                                                    "1e400",
                                                    "1e9",
                                                    "9223372036854775808",
                                                    "-0",
                                                    "0.5",
                                                    "-4294967296",
                                                    "1.5e",
                                                    "0x10",
                                                    "+5",
                                                    " 7",
                                                    "",
                                                    "1e-400",
                                                    "99999999999999999999",
                                                    "nan"};
        const std::size_t begin = text.find_first_of("0123456789", Below(text.size()));
        if (begin == std::string::npos) {
            return;
        }
        const std::size_t end = std::min(text.find_first_not_of("0123456789", begin), text.size());
        text.replace(begin, end - begin, kExtremes[Below(std::size(kExtremes))]);
    }

    /// Duplicates a piece, or swaps the places or names of two.
    void ChangePieces(std::string& text)
    {
        const std::vector<Piece> pieces = isJson_ ? JsonPieces(text) : XmlPieces(text);
        if (pieces.empty()) {
            return;
        }
        const Piece& a = pieces[Below(pieces.size())];
        const Piece& b = pieces[Below(pieces.size())];
        const auto textOf = [&text](Span span) {
            return text.substr(span.begin, span.end - span.begin);
        };
        std::vector<std::pair<Span, std::string>> edits;
        const std::size_t kind = Below(3);
        if (kind == 0) {
            edits.push_back(
                {{b.whole.begin, b.whole.begin}, textOf(a.whole) + (isJson_ ? "," : "")});
        } else if (kind == 1 && (a.whole.end <= b.whole.begin || b.whole.end <= a.whole.begin)) {
            edits = {{a.whole, textOf(b.whole)}, {b.whole, textOf(a.whole)}};
        } else if (kind == 2 && !a.names.empty() && !b.names.empty() && &a != &b) {
            for (const Span name : a.names) {
                edits.emplace_back(name, textOf(b.names[0]));
            }
            for (const Span name : b.names) {
                edits.emplace_back(name, textOf(a.names[0]));
            }
        }
        std::ranges::sort(edits, std::greater<>(),
                          [](const auto& edit) { return edit.first.begin; });
        for (const auto& [span, with] : edits) {
            text.replace(span.begin, span.end - span.begin, with);
        }
    }

    std::mt19937 random_;
    bool isJson_;
};

/// Shortens `text` as far as possible by leaving out stretches while `holds` stays true.
template <class Holds>
std::string Smallest(std::string text, Holds holds)
{
    for (std::size_t size = text.size() / 2; size > 0; size /= 2) {
        for (std::size_t at = 0; at < text.size();) {
            std::string less = text;
            less.erase(at, size);
            if (holds(less)) {
                text = std::move(less);
            } else {
                at += size;
            }
        }
    }
    return text;
}

}  // namespace TestSupport
