// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <optional>

#include "parser/constants.h"
#include "parser/results.h"
#include "parser/special_functions.h"
#include "util/number_reading.h"

namespace kelvra::parser {

namespace {

// Lanczos' approximation with g and 15 coefficients.
constexpr double G = 4.7421875;
constexpr double FirstCoefficient = 0.999999999999997;
constexpr double Coefficients[] = {
    57.1562356658629,      -59.5979603554755,    14.1360979747417,      -0.49191381609762,
    3.39946499848119E-05,  4.65236289270486E-05, -9.83744753048796E-05, 1.58088703224912E-04,
    -2.10264441724105E-04, 2.17439618115213E-04, -1.64318106536764E-04, 8.44182239838528E-05,
    -2.61908384015814E-05, 3.68991826595316E-06,
};

// A value as mantissa (from 1 to below 10) and decimal exponent, so that it may exceed the range of
// double.
struct Split {
    double mantissa;
    int exponent;
};

double LanczosSum(double z) {
    double sum = FirstCoefficient;
    int i = 0;
    for (const double coefficient : Coefficients) sum += coefficient / (z + ++i);
    return sum;
}

// Gamma of x; nothing where the sum has a pole or a logarithm has no argument.
std::optional<Split> GammaSplit(double x) {
    const double z = x - 1;
    const double sum = LanczosSum(z) * std::sqrt(TwoPi) / std::exp(G);
    const double power = (z + 0.5) * std::log((z + G + 0.5) / std::exp(1.0)) / std::log(10.0);
    const double whole = std::floor(power);
    const double mantissa = std::pow(10.0, power - whole) * sum;
    const double shift = std::floor(std::log10(mantissa));
    const auto exponent = util::RoundToInt32(whole + shift);
    if (!exponent) return std::nullopt;
    return Split{mantissa * std::pow(10.0, -shift), *exponent};
}

// Numerators and denominators of the Bernoulli numbers B(2), B(4), ... B(22).
constexpr struct {
    double numerator, denominator;
} Bernoulli[] = {
    {1, 6}, {-1, 30},     {1, 42},      {-1, 30},       {5, 66},       {-691, 2730},
    {7, 6}, {-3617, 510}, {43867, 798}, {-174611, 330}, {854513, 138},
};

// Sum of B(2k) / (k * z^2k).
double BernoulliSum(double z) {
    double sum = 0;
    double power = 1;
    int k = 0;
    for (const auto& number : Bernoulli) {
        power = Checked(power * z * z);
        sum += number.numerator / number.denominator / (++k * power);
    }
    return sum;
}

}  // namespace

double Gamma(double x) {
    const auto split = GammaSplit(x);
    return split ? split->mantissa * std::pow(10.0, split->exponent) : Failed;
}

double GammaLn(double x) {
    const auto split = GammaSplit(x);
    return split ? std::log(split->mantissa) + split->exponent * std::log(10.0) : Failed;
}

double Beta(double a, double b) {
    return std::exp(GammaLn(a) + GammaLn(b) - GammaLn(a + b));
}

double Digamma(double x) {
    constexpr int shift = 8;  // the asymptotic series needs a large argument
    const bool shifted = x <= shift;
    const double z = shifted ? x - 1 + shift : x - 1;
    double psi = std::log(z) + (1 / z - BernoulliSum(z)) / 2;
    if (shifted)
        for (int i = 0; i < shift; ++i) psi -= 1 / (x + i);
    return psi;
}

}  // namespace kelvra::parser
