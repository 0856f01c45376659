// Every number text gives what a stream with the classic locale makes of it.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/NumberText.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "Keel/StringUtil.h"
#include "support/ForeignLocale.h"

namespace
{

/// One stream for all texts: making one costs more than reading.
class Stream
{
public:
    Stream() { stream_.imbue(std::locale::classic()); }

    template <class Value>
    Value Read(const std::string& text)
    {
        stream_.clear();
        stream_.str(text);
        Value value{};
        stream_ >> value;
        return value;
    }

private:
    std::istringstream stream_;
};

template <class Value>
bool IsSame(Value a, Value b)
{
    if constexpr (std::is_floating_point_v<Value>) {
        return a == b && std::signbit(a) == std::signbit(b);
    } else {
        return a == b;
    }
}

std::string Printable(const std::string& text)
{
    const std::string head = text.size() > 120 ? text.substr(0, 120) + "..." : text;
    return testing::PrintToString(head) + " of " + std::to_string(text.size()) + " bytes";
}

/// True when `convert` and the stream agree on the text.
template <class Value>
testing::AssertionResult Agrees(Value (*convert)(std::string_view) noexcept, Stream& stream,
                                const std::string& text)
{
    const Value expected = stream.Read<Value>(text);
    const Value actual = convert(text);
    if (IsSame(expected, actual)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << Printable(text) << ": a stream reads " << testing::PrintToString(expected)
           << ", we read " << testing::PrintToString(actual);
}

testing::AssertionResult AllAgree(Stream& stream, const std::string& text)
{
    using namespace CapabilitySet;
    testing::AssertionResult result = Agrees(&StringToUInt, stream, text);
    result = result ? Agrees(&StringToInt, stream, text) : result;
    result = result ? Agrees(&StringToInt64, stream, text) : result;
    result = result ? Agrees(&StringToFloat, stream, text) : result;
    result = result ? Agrees(&StringToDouble, stream, text) : result;
    return result ? Agrees(&StringToBool, stream, text) : result;
}

/// A limit of some type, or a neighbour that differs in one digit or one more.
std::string NearLimit(std::mt19937& random)
{
    static constexpr std::array<const char*, 12> kLimits{"2147483647",
                                                         "2147483648",
                                                         "4294967295",
                                                         "4294967296",
                                                         "9223372036854775807",
                                                         "9223372036854775808",
                                                         "18446744073709551615",
                                                         "3.40282346638528859812e38",
                                                         "1.40129846432481707e-45",
                                                         "1.79769313486231570815e308",
                                                         "4.94065645841246544e-324",
                                                         "2.22507385850720138e-308"};
    const auto below = [&random](std::size_t bound) { return random() % bound; };
    std::string text = kLimits[below(kLimits.size())];
    char& changed = text[below(text.size())];
    if (changed >= '0' && changed <= '9' && below(2) == 0) {
        changed = static_cast<char>('0' + below(10));
    }
    for (const char* before : {"0", "-", " "}) {
        text.insert(0, below(3) == 0 ? before : "");
    }
    return text + (below(4) == 0 ? std::to_string(below(100)) : "");
}

TEST(NumberTextTest, ReadsTextsAtTheLimitsAsAStreamDoes)
{
    std::mt19937 random;  // NOLINT(cert-msc51-cpp): the same texts in every run
    Stream stream;
    for (int i = 0; i < 20'000 && !HasFailure(); ++i) {
        EXPECT_TRUE(AllAgree(stream, NearLimit(random)));
    }
}

TEST(NumberTextTest, ReadsAwkwardTextsAsAStreamDoes)
{
    const std::vector<std::string> texts = Keel::StringUtil::SplitString(
        "| |-|+|.|-.|e5|.e5|1.e5|12abc|12e|12em|1e+|1e+-5|1e5.3|1e5e3|0x10|0X1p3|inf|"
        "-nan|+5|+-5|- 5|-0|-0.0|-0e|-1|-4294967295|-4294967296|4294967296|1e400|"
        "-1e400|1e-400|-1e-400|1e-324|3e-324|2e-324|-1e-46|1e39|0e999999|"
        "1e99999999999999999999|1e-99999999999999999999|0e-99999999999999999999|1,234|"
        "1.234.5|00000000000000000012|3.4028235677973366e38|1.7976931348623158e308|"
        "1.7976931348623159e308|\xA0"
        "5",
        "|");
    Stream stream;
    for (const std::string& text : texts) {
        EXPECT_TRUE(AllAgree(stream, text));
    }
    EXPECT_TRUE(AllAgree(stream, "0." + std::string(5'000, '0') + "1e5001"));
    EXPECT_TRUE(AllAgree(stream, "1" + std::string(5'000, '0') + "e-5000"));
    EXPECT_TRUE(AllAgree(stream, std::string("1\0002", 3)));
}

TEST(NumberTextTest, IgnoresTheClientsGlobalLocale)
{
    const TestSupport::ForeignLocale locale;
    EXPECT_EQ(CapabilitySet::StringToUInt("1.234"), 1u);
    EXPECT_EQ(CapabilitySet::StringToDouble("1.5"), 1.5);
}

}  // namespace
