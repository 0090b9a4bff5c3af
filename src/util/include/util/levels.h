// SPDX-License-Identifier: GPL-3.0-or-later
// Power in watts and level in dBm, both ways. Shared by everything that shows or sends a power.
#pragma once

#include <span>

namespace kelvra::util {

// Level in dBm of a power in W: 10 * ln(P) / ln(10) + 30. A power of 0 or below counts as 1e-100 W,
// so it reads -970 dBm; NaN stays NaN.
double WToDbm(double powerW);

// Replaces each element, a power in W of either sign, by the level in dBm of its magnitude.
void ArrayW2dBm(std::span<double> values);

// Power in W of a level in dBm: 10 ^ (L / 10 - 3).
double DbmToW(double levelDbm);

}  // namespace kelvra::util
