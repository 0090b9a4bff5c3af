// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "allocation_count.h"
#include "formula.h"

namespace kelvra::parser {
namespace {

TEST(Allocation, EvaluatingAgainAndStoringAgainNeedNone) {
    for (const std::string text : {"ABS(X1dB-X2dB)", "(1+sqr(X1W/X2W))/(1-sqr(X1W/X2W))",
                                   "zeta(a)+gamma(b)+comb(9;4)+erf(a)+ei(b)+digamma(a)+rnd(b)"}) {
        Formula formula(text);
        formula.parser.VarValue(1, 2);
        formula.parser.VarValue(2, 3);
        const int before = AllocationCount();
        const double value = formula.parser.Eval();
        const bool compiles = formula.parser.StoreExpression(text);
        EXPECT_EQ(AllocationCount(), before) << text;
        EXPECT_TRUE(compiles && value != 0) << text;
    }
}

}  // namespace
}  // namespace kelvra::parser
