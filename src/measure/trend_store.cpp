// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/trend_store.h"

#include <algorithm>
#include <utility>

namespace kelvra::measure {

const TrendSeries* TrendStore::Find(const std::string& key) const {
    const auto found = std::find_if(series_.begin(), series_.end(),
                                    [&](const auto& series) { return series->Key() == key; });
    return found == series_.end() ? nullptr : found->get();
}

TrendSeries& TrendStore::Of(const std::string& key) {
    for (const auto& series : series_)
        if (series->Key() == key) return *series;
    if (series_.size() >= Most) MakeRoom();
    return *series_.emplace_back(std::make_unique<TrendSeries>(key, FreePlace()));
}

void TrendStore::MakeRoom() {
    auto oldest = series_.end();
    for (auto series = series_.begin(); series != series_.end(); ++series)
        if (!(*series)->active &&
            (oldest == series_.end() || (*series)->NewestTime() < (*oldest)->NewestTime()))
            oldest = series;
    if (oldest != series_.end()) series_.erase(oldest);
}

int TrendStore::FreePlace() const {
    int place = 0;
    while (std::any_of(series_.begin(), series_.end(),
                       [place](const auto& series) { return series->Place() == place; }))
        ++place;
    return place;
}

void TrendStore::Clear() {
    std::erase_if(series_, [](const auto& series) { return !series->active; });
    for (const auto& series : series_) series->Clear();
}

std::size_t TrendStore::Bytes() const {
    std::size_t bytes = 0;
    for (const auto& series : series_) bytes += series->Bytes();
    return bytes;
}

}  // namespace kelvra::measure
