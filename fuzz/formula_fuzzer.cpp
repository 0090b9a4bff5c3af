// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a formula: compiled, bound to values taken from the same bytes, evaluated, listed.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "parser/math_parser.h"

namespace {

// The next double of the input, any bit pattern; 1 when the input is used up.
double TakeValue(std::string_view& bytes) {
    double value = 1;
    if (bytes.size() < sizeof value) return value;
    std::memcpy(&value, bytes.data(), sizeof value);
    bytes.remove_prefix(sizeof value);
    return value;
}

void Require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using kelvra::parser::MathParser;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string_view formula = input.substr(0, input.find('\n'));
    std::string_view values = input.substr(formula.size());

    kelvra::util::Random random(1);
    MathParser parser(random);
    const bool compiles = parser.StoreExpression(formula);
    Require(compiles == parser.ErrorDescription().empty());
    for (int round = 0; round < 2; ++round) {
        for (int i = 1; i <= parser.VarTop(); ++i) {
            Require(parser.VarName(i).size() <= formula.size());
            parser.VarValue(i, TakeValue(values));
        }
        Require(std::isfinite(parser.Eval()));
    }
    Require(std::isfinite(parser.Eval1(TakeValue(values))));
    parser.Dump([](std::string_view line) { Require(!line.empty()); });
    return 0;
}
