// A client's global locale that groups digits and writes decimal commas.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <locale>
#include <string>

namespace TestSupport
{

/// In force while the object lives.
class ForeignLocale
{
public:
    ForeignLocale() : former_(std::locale::global({std::locale::classic(), new Punctuation})) {}
    ~ForeignLocale() { std::locale::global(former_); }
    ForeignLocale(const ForeignLocale&) = delete;
    ForeignLocale& operator=(const ForeignLocale&) = delete;

private:
    struct Punctuation : std::numpunct<char>
    {
        [[nodiscard]] char do_decimal_point() const override { return ','; }
        [[nodiscard]] char do_thousands_sep() const override { return '.'; }
        [[nodiscard]] std::string do_grouping() const override { return "\3"; }
    };

    const std::locale former_;
};

}  // namespace TestSupport
