// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/evaluation_plan.h"

#include <array>
#include <cmath>

#include "parser/arithmetic.h"
#include "parser/results.h"

namespace kelvra::parser {

namespace {

double NoOperation(double, double) {
    return Failed;
}

}  // namespace

// Formulas consist mostly of the basic operations, which take less time than a call.
void EvaluationPlan::Bind(Step& step, const Function* function) {
    step.ofOne = function == nullptr ? nullptr : function->ofOne;
    step.ofTwo = function == nullptr ? NoOperation : function->ofTwo;
    step.kind = step.ofTwo == Sum          ? Kind::Sum
                : step.ofTwo == Difference ? Kind::Difference
                : step.ofTwo == Product    ? Kind::Product
                : step.ofTwo == Ratio      ? Kind::Ratio
                : step.ofTwo != nullptr    ? Kind::OfTwo
                : step.ofOne != nullptr    ? Kind::OfOne
                                           : Kind::Random;
}

inline double EvaluationPlan::Apply(const Step& step, double a, double b, util::Random& random) {
    switch (step.kind) {
        case Kind::Sum:
            return Sum(a, b);
        case Kind::Difference:
            return Difference(a, b);
        case Kind::Product:
            return Product(a, b);
        case Kind::Ratio:
            return Ratio(a, b);
        case Kind::OfOne:
            return step.ofOne(a);
        case Kind::OfTwo:
            return step.ofTwo(a, b);
        case Kind::Random:
            return a * double{random.Next()};
    }
    return Failed;
}

void EvaluationPlan::Build(std::span<const ExpressionEntry> table) {
    std::array<std::size_t, MaxEntries + 1> stepOf{};
    for (std::size_t k = 1; k < table.size(); ++k) stepOf[table[k].order] = k - 1;
    steps_.resize(table.size() - 1);
    feeds_.clear();
    for (std::size_t k = 1; k < table.size(); ++k) {
        const ExpressionEntry& entry = table[k];
        Step& step = steps_[stepOf[k]];
        Bind(step, FindFunction(entry.code));
        step.takesLast = {};
        step.value = entry.value;
        step.entry = static_cast<std::int32_t>(k);
        step.receiver =
            entry.receiver == 0
                ? &result_
                : &steps_[stepOf[entry.receiver]].arguments[entry.receivingArgument - 1];
        for (std::size_t i = 0; i < entry.arguments.size(); ++i) {
            step.arguments[i] = entry.arguments[i].value;
            if (entry.arguments[i].variable != 0)
                feeds_.push_back({entry.arguments[i].variable, &step.arguments[i]});
        }
    }
    for (std::size_t k = 1; k < steps_.size(); ++k)
        for (std::size_t i = 0; i < 2; ++i)
            steps_[k].takesLast[i] = steps_[k - 1].receiver == &steps_[k].arguments[i];
}

void EvaluationPlan::Load(std::span<const Argument> variables) {
    for (const Feed& feed : feeds_) *feed.argument = variables[feed.variable].value;
}

void EvaluationPlan::Load(double value) {
    for (const Feed& feed : feeds_) *feed.argument = value;
}

std::optional<double> EvaluationPlan::Run(util::Random& random) {
    double value = 0;
    for (Step& step : steps_) {
        const double a = step.takesLast[0] ? value : step.arguments[0];
        const double b = step.takesLast[1] ? value : step.arguments[1];
        value = Apply(step, a, b, random);
        if (!std::isfinite(value)) {
            failed_ = static_cast<std::size_t>(&step - steps_.data());
            return std::nullopt;
        }
        step.value = value;
        *step.receiver = value;
    }
    return result_;
}

EvaluationPlan::Failure EvaluationPlan::LastFailure() const {
    const Step& step = steps_[failed_];
    return {step.entry, step.arguments[0], step.arguments[1]};
}

void EvaluationPlan::CopyValues(std::span<ExpressionEntry> table) const {
    for (const Step& step : steps_) {
        ExpressionEntry& entry = table[step.entry];
        entry.value = step.value;
        for (std::size_t i = 0; i < entry.arguments.size(); ++i)
            entry.arguments[i].value = step.arguments[i];
    }
}

}  // namespace kelvra::parser
