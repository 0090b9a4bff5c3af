// SPDX-License-Identifier: GPL-3.0-or-later
// A compiled table prepared for many runs: the operations in their order, contiguous in memory,
// bound to their functions and to the arguments they feed. Holds values, no texts.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "parser/expression_table.h"
#include "parser/function_table.h"
#include "util/random.h"

namespace kelvra::parser {

class EvaluationPlan {
public:
    // Takes a compiled table (slot 0 is not used).
    void Build(std::span<const ExpressionEntry> table);

    // Gives every argument that a variable feeds the variable's value, or the same value to all of
    // them.
    void Load(std::span<const Argument> variables);
    void Load(double value);

    // Runs the operations and gives the value of the last one; nothing after a failure, which ends
    // the run.
    std::optional<double> Run(util::Random& random);

    // The operation that failed in the last run.
    struct Failure {
        std::int32_t entry;
        double a, b;
    };
    Failure LastFailure() const;

    // Writes the values of arguments and results into the table that the plan was built from.
    void CopyValues(std::span<ExpressionEntry> table) const;

private:
    enum class Kind { Sum, Difference, Product, Ratio, OfOne, OfTwo, Random };
    struct Step {
        Kind kind;
        double (*ofOne)(double);
        double (*ofTwo)(double, double);
        std::array<double, 2> arguments;
        // Which arguments the previous step feeds. Its result is passed on directly: a round trip
        // through memory would take longer than the operation.
        std::array<bool, 2> takesLast;
        double value;
        double* receiver;
        std::int32_t entry;
    };
    static void Bind(Step& step, const Function* function);
    static double Apply(const Step& step, double a, double b, util::Random& random);

    struct Feed {
        std::int32_t variable;
        double* argument;
    };

    std::vector<Step> steps_;
    std::vector<Feed> feeds_;
    double result_ = 0;
    std::size_t failed_ = 0;
};

}  // namespace kelvra::parser
