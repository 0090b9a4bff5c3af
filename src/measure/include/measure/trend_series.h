// SPDX-License-Identifier: GPL-3.0-or-later
// The readings of one sensor over time, in bounded memory: the newest one by one, older ones as
// minimum, maximum, mean and number in coarser and coarser buckets. Powers are magnitudes in W, as
// in levels; times are those of the monotonic clock. Knows nothing of sensors.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"

namespace kelvra::measure {

// How long the readings are kept, and in which steps. A bucket costs 24 bytes, a reading 16.
struct TrendTier {
    platform::Duration width{};  // of a bucket
    std::size_t buckets = 0;
};
constexpr std::size_t TrendReadings = 65'536;  // kept one by one: 55 minutes of 20 a second
constexpr TrendTier TrendTiers[] = {
    {std::chrono::milliseconds(100), 12'000},  // 20 minutes
    {std::chrono::seconds(1), 14'400},         // 4 hours
    {std::chrono::seconds(10), 12'960},        // 36 hours
    {std::chrono::minutes(1), 11'520},         // 8 days
    {std::chrono::minutes(10), 8'640},         // 60 days
};
constexpr std::size_t TrendTierCount = std::size(TrendTiers);

// What is known of the readings in a stretch of time, in W. The mean is that of the powers.
struct TrendColumn {
    double min = 0, max = 0, mean = 0;
    std::uint32_t count = 0;  // of the readings; 0: there are none
    bool joined = false;      // nothing has interrupted the readings since the column before
};

// The newest element replaces the oldest one once the ring is full. Memory is reserved when the
// first one comes.
template <class Element>
class TrendRing {
public:
    explicit TrendRing(std::size_t capacity) : capacity_(capacity) {}

    void Add(const Element& element) {
        if (elements_.size() < capacity_) {
            if (elements_.empty()) elements_.reserve(capacity_);
            elements_.push_back(element);
            return;
        }
        elements_[oldest_] = element;
        if (++oldest_ == capacity_) oldest_ = 0;
    }
    std::size_t Size() const { return elements_.size(); }
    bool Full() const { return elements_.size() == capacity_; }
    // From the oldest one on.
    const Element& operator[](std::size_t index) const {
        const std::size_t place = oldest_ + index;
        return elements_[place < elements_.size() ? place : place - elements_.size()];
    }
    std::size_t Bytes() const { return elements_.capacity() * sizeof(Element); }

private:
    std::size_t capacity_;
    std::size_t oldest_ = 0;
    std::vector<Element> elements_;
};

class TrendSeries {
public:
    TrendSeries(std::string key, int place);

    // What the sensor is known by in this run.
    const std::string& Key() const { return key_; }
    // The lowest number that was free: sensors keep their colours by it.
    int Place() const { return place_; }
    std::string name;
    // It is measured now.
    bool active = false;

    // Takes the magnitude of a power in W. A time before that of the newest reading counts as that.
    // A power that is not finite is a break.
    void Add(platform::Duration at, double powerW);
    // Nothing joins the next reading to those before.
    void Break() { broken_ = true; }
    // Drops the readings and gives back their memory.
    void Clear();

    // That many columns of that width, the first one from `from` on; from the coarsest buckets that
    // are narrow enough, and from coarser ones for times of which those are no longer kept. What a
    // coarser bucket has is in all columns that it covers. What begins at `until` or later is left
    // out. A width of 0 or less gives no columns.
    std::vector<TrendColumn> Query(platform::Duration from, platform::Duration width, int columns,
                                   platform::Duration until = platform::Duration::max()) const;

    // The newest reading before that time, in W. Nothing if it is no longer kept as such.
    std::optional<double> LastBefore(platform::Duration time) const;
    std::optional<platform::Duration> NewestTime() const;

    // What the readings take up, as reserved.
    std::size_t Bytes() const;

private:
    struct Reading {
        platform::Duration at{};
        float power = 0;
        bool broken = false;  // from what was before
    };
    struct Bucket {
        platform::Duration at{};  // a multiple of its width
        float min = 0, max = 0, mean = 0;
        std::uint32_t count : 31 = 0;
        std::uint32_t broken : 1 = 0;
    };
    static_assert(sizeof(Reading) == 16 && sizeof(Bucket) == 24);

    // Readings and buckets alike, for putting them together.
    struct Piece {
        platform::Duration at{}, width{};
        double min = 0, max = 0, sum = 0;
        std::uint64_t count = 0;
        bool broken = false;
    };
    struct Tier {
        explicit Tier(std::size_t buckets) : closed(buckets) {}
        TrendRing<Bucket> closed;
        Piece open;  // the bucket that is not complete yet
    };
    class Columns;

    void Put(std::size_t tier, const Piece& piece);
    static Bucket Closed(const Piece& open);
    static Piece PieceOf(const Reading& reading);
    static Piece PieceOf(const Bucket& bucket, platform::Duration width);
    // Where what is kept begins; nothing if nothing is lost yet. Level 0 has the readings.
    std::optional<platform::Duration> Beginning(std::size_t level) const;
    void Collect(std::size_t level, platform::Duration from, platform::Duration to,
                 Columns& columns) const;

    std::string key_;
    int place_;
    bool broken_ = true;
    platform::Duration newest_{};
    TrendRing<Reading> readings_{TrendReadings};
    std::vector<Tier> tiers_;
};

}  // namespace kelvra::measure
