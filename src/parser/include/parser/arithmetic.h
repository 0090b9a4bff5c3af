// SPDX-License-Identifier: GPL-3.0-or-later
// The four basic operations by name, so that the function table and the evaluation loop, which
// inlines them, agree. A division by 0 gives a value that is not finite.
#pragma once

namespace kelvra::parser {

inline double Sum(double a, double b) {
    return a + b;
}
inline double Difference(double a, double b) {
    return a - b;
}
inline double Product(double a, double b) {
    return a * b;
}
inline double Ratio(double a, double b) {
    return a / b;
}

}  // namespace kelvra::parser
