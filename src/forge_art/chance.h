// The painters' own source of chance: the same seed gives the same picture on every machine and in
// every build. Recipes seed it from the number of what they paint.
#pragma once

#include <cstdint>

namespace varnstride::art {

// Scatters the bits of a number; near numbers give far results.
constexpr std::uint32_t Scattered(std::uint32_t value) {
    value = (value ^ value >> 16) * 0x7FEB352DU;
    value = (value ^ value >> 15) * 0x846CA68BU;
    return value ^ value >> 16;
}

// A number from 0 to just below 1 that belongs to a pixel of the plane.
constexpr double NoiseAt(int x, int y, std::uint32_t salt) {
    const std::uint32_t mixed = Scattered(static_cast<std::uint32_t>(x) * 0x9E3779B1U +
                                          Scattered(static_cast<std::uint32_t>(y) + salt));
    return static_cast<double>(mixed >> 8) / 16777216.0;
}

class Chance {
 public:
    explicit Chance(std::uint32_t seed) : state_(Scattered(seed + 0x5EED)) {}

    // From 0 to just below 1.
    double Unit() {
        state_ += 0x9E3779B9U;
        return static_cast<double>(Scattered(state_) >> 8) / 16777216.0;
    }
    double Between(double low, double high) { return low + (high - low) * Unit(); }
    int Below(int count) { return static_cast<int>(Unit() * count); }
    bool OneIn(int count) { return Below(count) == 0; }

 private:
    std::uint32_t state_;
};

}  // namespace varnstride::art
