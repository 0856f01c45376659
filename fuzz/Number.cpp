// Fuzzes the reading of numbers.
// SPDX-License-Identifier: Apache-2.0
#include <cmath>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "CapabilitySet/private/NumberText.h"
#include "fuzz/Targets.h"

namespace Fuzz
{
namespace
{

template <class Value>
void Compare(Value (*convert)(std::string_view) noexcept, const std::string& text)
{
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    Value expected{};
    stream >> expected;
    const Value value = convert(text);
    if (value != expected ||
        std::signbit(static_cast<double>(value)) != std::signbit(static_cast<double>(expected))) {
        throw std::logic_error("a stream reads " + std::to_string(expected) + ", not " +
                               std::to_string(value));
    }
}

}  // namespace

void Number(const std::string& text)
{
    using namespace CapabilitySet;
    Compare<std::uint32_t>(StringToUInt, text);
    Compare<std::int32_t>(StringToInt, text);
    Compare<std::int64_t>(StringToInt64, text);
    Compare<float>(StringToFloat, text);
    Compare<double>(StringToDouble, text);
    Compare<bool>(StringToBool, text);
}

}  // namespace Fuzz
