// SPDX-License-Identifier: GPL-3.0-or-later
// A periodic course of power, relative to the level of its source: points joined by straight lines.
// A step is two points at one time. The first period begins at the bench's time 0.
#pragma once

#include <vector>

namespace kelvra::virtual_sensors {

// Powers are ratios to the source's level. Edges are raised cosines, and `edge` is their whole
// length in s: see EdgeOfRise.
struct PulseShape {
    double period = 0;     // s, at least width + edge
    double width = 0;      // s, between the middles of the edges; at least edge
    double edge = 0;       // s
    double overshoot = 0;  // of the rise, 0 to 1; needs an edge
    double off = 0;        // power between the pulses, 0 to 1
};

struct FrameShape {
    double slot = 0;  // s, at least edge
    double edge = 0;  // s, at the beginning of each slot
    std::vector<double> levels;
};

// The whole length of an edge that takes `rise` from 10 to 90 %.
double EdgeOfRise(double rise);

class Waveform {
public:
    struct Point {
        double time;    // s since the period began
        double power;   // from here on a straight line to the next point's
        double energy;  // the power's integral since the period began
    };

    // Each overshoot is followed by a ringing that dies away, in half periods as long as the edge.
    static Waveform Pulses(const PulseShape& shape);
    static Waveform Frame(const FrameShape& shape);

    // The first is at time 0, the last at the period's end.
    const std::vector<Point>& Points() const { return points_; }
    double Period() const { return points_.back().time; }
    double Highest() const;
    double Lowest() const;

    // The bench's time as a time since the period began, 0 to Period().
    double PhaseOf(double time) const;

    // Over a period, and over `length` s (above 0) from the bench's time `start` on.
    double Mean() const { return points_.back().energy / Period(); }
    double Mean(double start, double length) const;

private:
    void Add(double time, double power);
    void AddEdge(double begin, double length, double from, double to);
    double EnergyUpTo(double phase) const;

    std::vector<Point> points_;
};

}  // namespace kelvra::virtual_sensors
