// SPDX-License-Identifier: GPL-3.0-or-later
// How fast formulas compile and evaluate, with muParser for comparison: a formula stored and
// evaluated once, and evaluated again with new values of its variables.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <array>
#include <cmath>
#include <string>

#include "parser/math_parser.h"

namespace {

using kelvra::parser::MathParser;

// A polynomial of degree 20 by Horner's rule: 40 operators.
std::string Polynomial() {
    std::string polynomial = "1.5";
    for (int i = 0; i < 20; ++i)
        polynomial.insert(0, "(").append(")*X1W+").append(std::to_string(i % 7)).append(".25");
    return polynomial;
}

// Both parsers accept these texts.
const std::array<std::string, 4> Formulas = {
    "ABS(X1dB-X2dB)",
    "(1+sqr(X1W/X2W))/(1-sqr(X1W/X2W))",
    Polynomial(),
    "sin(X1W)+cos(X2W)+tan(X1W)+exp(X2W)+Ln(X1W)+sqr(X2W)+ABS(X1W-X2W)+sinh(X1W)+cosh(X2W)+tanh("
    "X1W)",
};

// Functions that muParser spells differently.
double SquareRoot(double x) {
    return std::sqrt(x);
}
double Absolute(double x) {
    return std::abs(x);
}
double Logarithm(double x) {
    return std::log(x);
}

struct MuFormula {
    MuFormula() {
        parser.DefineFun("sqr", SquareRoot);
        parser.DefineFun("ABS", Absolute);
        parser.DefineFun("Ln", Logarithm);
        const std::array names = {"X1dB", "X2dB", "X1W", "X2W"};
        for (std::size_t i = 0; i < names.size(); ++i) parser.DefineVar(names[i], &values[i % 2]);
    }
    std::array<double, 2> values = {0.7, 0.3};
    mu::Parser parser;
};

void StoreAndEval(benchmark::State& state) {
    const std::string& formula = Formulas[state.range(0)];
    kelvra::util::Random random(1);
    MathParser parser(random);
    for (auto _ : state) {
        if (!parser.StoreExpression(formula)) state.SkipWithError("does not compile");
        parser.VarValue(1, 0.7);
        parser.VarValue(2, 0.3);
        benchmark::DoNotOptimize(parser.Eval());
    }
}

void StoreAndEvalMuParser(benchmark::State& state) {
    const std::string& formula = Formulas[state.range(0)];
    MuFormula mu;
    for (auto _ : state) {
        mu.parser.SetExpr(formula);
        benchmark::DoNotOptimize(mu.parser.Eval());
    }
}

void EvalAgain(benchmark::State& state) {
    kelvra::util::Random random(1);
    MathParser parser(random);
    if (!parser.StoreExpression(Formulas[state.range(0)])) state.SkipWithError("does not compile");
    double x = 0.5;
    for (auto _ : state) {
        parser.VarValue(1, x += 1e-9);
        parser.VarValue(2, x / 2);
        benchmark::DoNotOptimize(parser.Eval());
    }
    if (!parser.ErrorDescription().empty()) state.SkipWithError("does not evaluate");
}

void EvalAgainMuParser(benchmark::State& state) {
    MuFormula mu;
    mu.parser.SetExpr(Formulas[state.range(0)]);
    double x = 0.5;
    for (auto _ : state) {
        mu.values[0] = x += 1e-9;
        mu.values[1] = x / 2;
        benchmark::DoNotOptimize(mu.parser.Eval());
    }
}

}  // namespace

BENCHMARK(StoreAndEval)->DenseRange(0, 3);
BENCHMARK(StoreAndEvalMuParser)->DenseRange(0, 3);
BENCHMARK(EvalAgain)->DenseRange(0, 3);
BENCHMARK(EvalAgainMuParser)->DenseRange(0, 3);

BENCHMARK_MAIN();
