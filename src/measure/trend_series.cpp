// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/trend_series.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace kelvra::measure {

using platform::Duration;

namespace {

constexpr std::uint64_t MostCounted = (1U << 31) - 1;

// Rounded down, also before the clock's beginning.
std::int64_t IndexOf(Duration at, Duration width) {
    const auto index = at / width;
    return at % width < Duration(0) ? index - 1 : index;
}

template <class Sum>
void Merge(Sum& sum, double min, double max, double total, std::uint64_t count) {
    sum.min = sum.count == 0 ? min : std::min(sum.min, min);
    sum.max = sum.count == 0 ? max : std::max(sum.max, max);
    sum.sum += total;
    sum.count += count;
}

// The first element that begins at that time or later.
template <class Ring>
std::size_t FirstFrom(const Ring& ring, Duration from) {
    std::size_t low = 0, high = ring.Size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (ring[middle].at < from)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

}  // namespace

// Puts pieces together that come in the order of their times.
class TrendSeries::Columns {
public:
    Columns(Duration from, Duration width, int columns)
        : from_(from), width_(width), sums_(static_cast<std::size_t>(columns)) {}

    Duration End() const { return from_ + width_ * static_cast<std::int64_t>(sums_.size()); }

    // Into all columns that the piece covers, before the one of `end`.
    void Add(const Piece& piece, Duration end) {
        if (piece.width <= width_) return AddTo(IndexOf(piece.at - from_, width_), piece);
        const auto last =
            IndexOf(std::min(piece.at + piece.width, end) - from_ - Duration(1), width_);
        const auto first = IndexOf(piece.at - from_, width_);
        Piece part = piece;
        const auto share = static_cast<std::uint64_t>(piece.width / width_);
        part.count = std::max<std::uint64_t>(piece.count / share, 1);
        part.sum = piece.sum / static_cast<double>(piece.count) * static_cast<double>(part.count);
        const auto size = static_cast<std::int64_t>(sums_.size());
        for (auto column = std::max<std::int64_t>(first, 0); column <= std::min(last, size - 1);
             ++column) {
            AddTo(column, part);
            part.broken = false;
        }
    }

    std::vector<TrendColumn> Take() const {
        std::vector<TrendColumn> columns(sums_.size());
        for (std::size_t i = 0; i < sums_.size(); ++i)
            if (const Piece& sum = sums_[i]; sum.count > 0)
                columns[i] = {sum.min, sum.max, sum.sum / static_cast<double>(sum.count),
                              static_cast<std::uint32_t>(std::min(sum.count, MostCounted)),
                              !sum.broken};
        return columns;
    }

private:
    void AddTo(std::int64_t column, const Piece& piece) {
        if (column < 0 || column >= static_cast<std::int64_t>(sums_.size())) return;
        Piece& sum = sums_[static_cast<std::size_t>(column)];
        if (sum.count == 0) sum.broken = piece.broken;
        Merge(sum, piece.min, piece.max, piece.sum, piece.count);
    }

    Duration from_, width_;
    std::vector<Piece> sums_;
};

TrendSeries::TrendSeries(std::string key, int place) : key_(std::move(key)), place_(place) {
    Clear();
}

void TrendSeries::Clear() {
    readings_ = TrendRing<Reading>(TrendReadings);
    tiers_.clear();
    for (const TrendTier& tier : TrendTiers) tiers_.emplace_back(tier.buckets);
    broken_ = true;
}

void TrendSeries::Add(Duration at, double powerW) {
    if (!std::isfinite(powerW)) return Break();
    const double power = std::min(std::abs(powerW), double{std::numeric_limits<float>::max()});
    newest_ = std::max(newest_, at);
    readings_.Add({newest_, static_cast<float>(power), broken_});
    // Nearly always the bucket is the same as before: that must cost little.
    if (Piece& open = tiers_.front().open; open.count > 0 && newest_ < open.at + open.width)
        Merge(open, power, power, power, 1);
    else
        Put(0, {newest_, {}, power, power, power, 1, broken_});
    broken_ = false;
}

// A bucket is complete when a piece for a later one comes; then it is one piece of the next tier.
void TrendSeries::Put(std::size_t tier, const Piece& piece) {
    Piece& open = tiers_[tier].open;
    if (open.count == 0 || piece.at >= open.at + open.width) {
        const Duration width = TrendTiers[tier].width;
        const Piece complete = std::exchange(
            open, {IndexOf(piece.at, width) * width, width, 0, 0, 0, 0, piece.broken});
        if (complete.count > 0) {
            tiers_[tier].closed.Add(Closed(complete));
            if (tier + 1 < TrendTierCount) Put(tier + 1, complete);
        }
    }
    Merge(open, piece.min, piece.max, piece.sum, piece.count);
}

TrendSeries::Bucket TrendSeries::Closed(const Piece& open) {
    Bucket bucket;
    bucket.at = open.at;
    bucket.min = static_cast<float>(open.min);
    bucket.max = static_cast<float>(open.max);
    bucket.mean = static_cast<float>(open.sum / static_cast<double>(open.count));
    bucket.count = static_cast<std::uint32_t>(std::min(open.count, MostCounted)) & MostCounted;
    bucket.broken = open.broken ? 1 : 0;
    return bucket;
}

TrendSeries::Piece TrendSeries::PieceOf(const Reading& reading) {
    return {reading.at, {}, reading.power, reading.power, reading.power, 1, reading.broken};
}

TrendSeries::Piece TrendSeries::PieceOf(const Bucket& bucket, Duration width) {
    return {bucket.at,
            width,
            bucket.min,
            bucket.max,
            double{bucket.mean} * bucket.count,
            bucket.count,
            bucket.broken != 0};
}

std::optional<Duration> TrendSeries::Beginning(std::size_t level) const {
    if (level == 0) return readings_.Full() ? std::optional(readings_[0].at) : std::nullopt;
    const TrendRing<Bucket>& closed = tiers_[level - 1].closed;
    if (!closed.Full()) return std::nullopt;
    return closed[0].at;
}

// The pieces of a level that begin in that time. What is not in a closed bucket of the tier yet is
// in the open ones of this tier and the finer ones, in this order of time.
void TrendSeries::Collect(std::size_t level, Duration from, Duration to, Columns& columns) const {
    if (level == 0) {
        for (auto i = FirstFrom(readings_, from); i < readings_.Size() && readings_[i].at < to; ++i)
            columns.Add(PieceOf(readings_[i]), to);
        return;
    }
    const Duration width = TrendTiers[level - 1].width;
    const TrendRing<Bucket>& closed = tiers_[level - 1].closed;
    for (auto i = FirstFrom(closed, from); i < closed.Size() && closed[i].at < to; ++i)
        columns.Add(PieceOf(closed[i], width), to);
    for (std::size_t tier = level; tier-- > 0;)
        if (const Piece& open = tiers_[tier].open;
            open.count > 0 && open.at >= from && open.at < to)
            columns.Add(open, to);
}

std::vector<TrendColumn> TrendSeries::Query(Duration from, Duration width, int columns,
                                            Duration until) const {
    if (width <= Duration(0) || columns <= 0) return {};
    Columns collected(from, width, columns);
    std::size_t finest = TrendTierCount;
    while (finest > 0 && TrendTiers[finest - 1].width > width) --finest;
    std::size_t coarsest = finest;
    for (auto lost = Beginning(coarsest); coarsest < TrendTierCount && lost && *lost > from;
         lost = Beginning(coarsest))
        ++coarsest;
    // Each level gives what is older than all that the finer ones have.
    std::array<Duration, TrendTierCount + 1> ends{};
    ends[finest] = collected.End();
    for (std::size_t level = finest; level < coarsest; ++level)
        ends[level + 1] = std::min(ends[level], *Beginning(level));
    for (std::size_t level = coarsest + 1; level-- > finest;) {
        const Duration wide = level == 0 ? Duration(0) : TrendTiers[level - 1].width;
        const Duration begin = level == coarsest ? from - wide : *Beginning(level);
        Collect(level, begin, std::min(ends[level], until), collected);
    }
    return collected.Take();
}

std::optional<double> TrendSeries::LastBefore(Duration time) const {
    const auto next = FirstFrom(readings_, time);
    if (next == 0) return std::nullopt;
    return readings_[next - 1].power;
}

std::optional<Duration> TrendSeries::NewestTime() const {
    return readings_.Size() == 0 ? std::nullopt : std::optional(newest_);
}

std::size_t TrendSeries::Bytes() const {
    std::size_t bytes = sizeof(*this) + readings_.Bytes() + tiers_.capacity() * sizeof(Tier);
    for (const Tier& tier : tiers_) bytes += tier.closed.Bytes();
    return bytes;
}

}  // namespace kelvra::measure
