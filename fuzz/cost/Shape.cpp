// Inputs of any size that repeat a few pieces.
// SPDX-License-Identifier: Apache-2.0
#include "fuzz/cost/Shape.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace Cost
{
namespace
{

constexpr std::size_t kLongestPiece = 4096;
constexpr std::size_t kMostRepeats = 6;

void AppendNumbered(std::string& text, std::string_view piece, std::size_t number)
{
    for (const char c : piece) {
        if (c != kCounter) {
            text += c;
            continue;
        }
        std::array<char, 16> digits{};
        const auto end =
            std::to_chars(digits.data(), digits.data() + digits.size(), number, 36).ptr;
        text.append(digits.data(), end);
    }
}

std::size_t Below(Random& random, std::size_t bound)
{
    return bound == 0 ? 0 : random() % bound;
}

template <class Items>
auto& Any(Items& items, Random& random)
{
    return items[Below(random, items.size())];
}

/// One of the texts that a shape is made of.
std::string& AnyPiece(Shape& shape, Random& random)
{
    const std::size_t chosen = Below(random, 2 + 2 * shape.repeats.size());
    if (chosen < 2) {
        return chosen == 0 ? shape.head : shape.tail;
    }
    Repeat& repeat = shape.repeats[(chosen - 2) / 2];
    return chosen % 2 == 0 ? repeat.open : repeat.close;
}

void ChangePiece(std::string& piece, const std::vector<std::string>& words, Random& random)
{
    const std::size_t at = Below(random, piece.size() + 1);
    const std::size_t length = Below(random, std::min<std::size_t>(piece.size() - at, 16) + 1);
    switch (Below(random, 6)) {
        case 0:
            piece.erase(at, length);
            break;
        case 1:
            piece.insert(at, 1, static_cast<char>(Below(random, 256)));
            break;
        case 2:
            piece.insert(at, 1, kCounter);
            break;
        case 3:
            piece.insert(at, piece.substr(at, length));
            break;
        case 4:
            piece.replace(at, length, Any(words, random));
            break;
        default:
            piece.insert(at, Any(words, random));
            break;
    }
    if (piece.size() > kLongestPiece) {
        piece.resize(kLongestPiece);
    }
}

void ChangeRepeats(Shape& shape, const std::vector<Shape>& others, Random& random)
{
    auto& repeats = shape.repeats;
    const auto& other = Any(others, random).repeats;
    switch (Below(random, 5)) {
        case 0:
            if (repeats.size() > 1) {
                repeats.erase(repeats.begin() +
                              static_cast<std::ptrdiff_t>(Below(random, repeats.size())));
            }
            break;
        case 1:
            if (!repeats.empty()) {
                Any(repeats, random).weight = 1 + static_cast<unsigned>(Below(random, 8));
            }
            break;
        case 2:
            std::shuffle(repeats.begin(), repeats.end(), random);
            break;
        case 3:
            if (!repeats.empty() && !other.empty()) {
                Any(repeats, random) = Any(other, random);
            }
            break;
        default:
            if (repeats.size() < kMostRepeats && !other.empty()) {
                repeats.push_back(Any(other, random));
            }
            break;
    }
}

/// Where the element that begins at `from` ends; npos when it does not.
std::size_t EndOfElement(std::string_view text, std::size_t from)
{
    int depth = 0;
    std::size_t at = from;
    while ((at = text.find('<', at)) != std::string_view::npos) {
        const std::size_t end = text.find('>', at);
        if (end == std::string_view::npos) {
            return end;
        }
        const bool opens = text[at + 1] != '/' && text[at + 1] != '!' && text[at + 1] != '?';
        if (text[at + 1] == '/') {
            --depth;
        } else if (opens && text[end - 1] != '/') {
            ++depth;
        }
        at = end + 1;
        if (depth == 0) {
            return at;
        }
    }
    return at;
}

/// Where the JSON object that begins at `from` ends; npos when it does not.
std::size_t EndOfObject(std::string_view text, std::size_t from)
{
    int depth = 0;
    bool quoted = false;
    for (std::size_t at = from; at < text.size(); ++at) {
        if (text[at] == '"' && text[at - 1] != '\\') {
            quoted = !quoted;
        } else if (!quoted && (text[at] == '{' || text[at] == '}')) {
            depth += text[at] == '{' ? 1 : -1;
            if (depth == 0) {
                return at + 1;
            }
        }
    }
    return std::string_view::npos;
}

Shape Around(const std::string& document, std::size_t from, std::size_t end, const char* between)
{
    return {document.substr(0, end),
            {{between + document.substr(from, end - from)}},
            document.substr(end)};
}

}  // namespace

std::string Shape::Text(std::size_t size) const
{
    std::string text = head;
    const std::size_t fixed = head.size() + tail.size();
    const std::size_t room = size > fixed ? size - fixed : 0;
    std::size_t weights = 0;
    for (const Repeat& repeat : repeats) {
        weights += repeat.weight;
    }
    for (const Repeat& repeat : repeats) {
        const std::size_t length = repeat.open.size() + repeat.close.size();
        const std::size_t share = room / weights * repeat.weight;
        const std::size_t count =
            std::max<std::size_t>(share / std::max<std::size_t>(length, 1), 1);
        for (std::size_t number = 0; number < count && text.size() <= size; ++number) {
            AppendNumbered(text, repeat.open, number);
        }
        for (std::size_t number = count; !repeat.close.empty() && number-- > 0;) {
            AppendNumbered(text, repeat.close, number);
        }
    }
    return text += tail;
}

Shape Mutated(const Shape& shape, const std::vector<std::string>& words,
              const std::vector<Shape>& others, Random& random)
{
    Shape changed = shape;
    for (std::size_t changes = 1 + Below(random, 4); changes > 0; --changes) {
        if (Below(random, 3) == 0) {
            ChangeRepeats(changed, others, random);
        } else {
            ChangePiece(AnyPiece(changed, random), words, random);
        }
    }
    return changed;
}

std::vector<Shape> RepeatedParts(const std::string& document)
{
    constexpr std::size_t kMost = 32;
    const bool isXml = document.starts_with('<') || document.starts_with("\xef\xbb\xbf<");
    std::vector<std::size_t> starts;
    for (std::size_t at = document.find(isXml ? '<' : '{', 1); at < document.size();
         at = document.find(isXml ? '<' : '{', at + 1)) {
        if (!isXml ||
            (document[at + 1] != '/' && document[at + 1] != '!' && document[at + 1] != '?')) {
            starts.push_back(at);
        }
    }
    std::vector<Shape> shapes;
    const std::size_t step = std::max<std::size_t>(starts.size() / kMost, 1);
    for (std::size_t index = isXml ? 1 : 0; index < starts.size(); index += step) {
        const std::size_t from = starts[index];
        const std::size_t end = isXml ? EndOfElement(document, from) : EndOfObject(document, from);
        if (end < document.size() && end - from <= kLongestPiece) {
            shapes.push_back(Around(document, from, end, isXml ? "" : ","));
        }
    }
    return shapes;
}

}  // namespace Cost
