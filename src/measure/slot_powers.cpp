// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/slot_powers.h"

#include <algorithm>
#include <cmath>

#include "util/levels.h"

namespace kelvra::measure {

namespace {

struct Mean {
    double sum = 0;
    int count = 0;

    double Level() const { return util::WToDbm(count > 0 ? sum / count : 0); }
};

}  // namespace

std::vector<double> SlotPowers(std::span<const double> traceW,
                               const sensors::SensorSettings& settings) {
    std::vector<Mean> slots(static_cast<std::size_t>(std::max<int>(settings.TSlotCount, 0)));
    const double width = settings.TSlotWidth;
    const double step = settings.ScopeTime / static_cast<double>(traceW.size());
    for (std::size_t i = 0; i < traceW.size(); ++i) {
        const double time = static_cast<double>(i) * step;
        const double slot = std::floor(time / width);
        if (!(slot >= 0 && slot < static_cast<double>(slots.size()))) continue;
        if (!(time > slot * width + settings.TSlotExclStart &&
              time < (slot + 1) * width - settings.TSlotExclStop))
            continue;
        if (!std::isfinite(traceW[i])) continue;
        Mean& mean = slots[static_cast<std::size_t>(slot)];
        mean.sum += std::abs(traceW[i]);
        ++mean.count;
    }
    std::vector<double> levels(slots.size());
    std::transform(slots.begin(), slots.end(), levels.begin(),
                   [](const Mean& mean) { return mean.Level(); });
    return levels;
}

}  // namespace kelvra::measure
