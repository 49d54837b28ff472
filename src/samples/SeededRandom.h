#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace iceline {

/// Whole numbers by chance that are the same on every machine for the same seed: the splitmix64 generator
/// with distributions of its own, since those of the standard library differ from one library to the next.
/// Nothing here goes through floating point.
class SeededRandom {
public:
    explicit SeededRandom(std::uint64_t seed) : state_(seed) {}

    /// All 64 bits.
    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t bits = state_;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9u;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBu;
        return bits ^ (bits >> 31);
    }

    /// 0 to bound - 1; `bound` is at least 1.
    int below(int bound) {
        return static_cast<int>(((next() >> 32) * static_cast<std::uint64_t>(bound)) >> 32);
    }

    /// One of the values, each as likely as the others; there is one at least.
    template <class Value>
    Value oneOf(std::span<const Value> values) {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

    /// True in `part` of `whole` cases.
    bool chance(int part, int whole) { return below(whole) < part; }

    /// An index of `weights`, each as likely as its weight; one at least is above 0.
    std::size_t pick(std::span<const int> weights) {
        int total = 0;
        for (const int weight : weights)
            total += weight;
        int left = below(total);
        std::size_t index = 0;
        while (left >= weights[index])
            left -= weights[index++];
        return index;
    }

private:
    std::uint64_t state_;
};

} // namespace iceline
