// SPDX-License-Identifier: GPL-3.0-or-later
// What every exported function does around its own work: it counts the call, carries out the
// scenario's faults and events, turns the outcome into a status, and lets no exception leave the
// library. Also how texts and numbers are handed to the caller.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string_view>

#include "virtual_bench.h"

#define KELVRA_VIRTUAL_EXPORT extern "C" __attribute__((visibility("default")))

namespace kelvra::virtual_sensors {

// The bench that the library's functions work on, created by the first call. Each library defines
// it.
VirtualBench& TheBench();

inline void Report(const std::exception& failure) noexcept {
    std::fputs(failure.what(), stderr);
    std::fputc('\n', stderr);
}

// Runs body(bench, twist), which gives an Outcome.
template <class Body>
int32_t Call(Operation operation, int64_t channel, Body body) noexcept {
    try {
        VirtualBench& bench = TheBench();
        const Twist twist = bench.BeginCall(operation, channel);
        if (twist.status) return bench.EndCall(operation, channel, *twist.status, "");
        const Outcome outcome = body(bench, twist);
        return bench.EndCall(operation, channel, static_cast<int32_t>(outcome.status),
                             outcome.detail);
    } catch (const std::exception& failure) {
        Report(failure);
        return static_cast<int32_t>(Status::InternalFailure);
    }
}

// The caller's text up to its NUL. A text longer than any resource is cut, and then names no
// sensor.
inline std::string_view TextOf(const char* text) {
    constexpr std::size_t longest = 512;
    return text == nullptr ? std::string_view() : std::string_view(text, ::strnlen(text, longest));
}

// Writes as much of the text as fits into `size` bytes with its NUL.
inline Outcome PutText(char* to, std::size_t size, std::string_view text, const Twist& twist) {
    if (to == nullptr || size == 0) return {Status::MissingPointer};
    if (twist.unended) {
        for (std::size_t i = 0; i < size; ++i) to[i] = text.empty() ? '?' : text[i % text.size()];
        return {};
    }
    const std::size_t length = std::min(text.size(), size - 1);
    std::copy_n(text.data(), length, to);
    to[length] = '\0';
    return {};
}

// Writes a count, code, flag or handle.
template <class Number>
Outcome PutWhole(Number* to, Number number, const Twist& twist) {
    if (to == nullptr) return {Status::MissingPointer};
    *to = twist.count ? static_cast<Number>(*twist.count) : number;
    return {};
}

}  // namespace kelvra::virtual_sensors
