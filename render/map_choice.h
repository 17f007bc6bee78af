#pragma once
// Choosing a map by probability. A draw r is rounded to 4 decimals and the map is the first whose
// cumulative probability is not below r, so there are only 10,001 possible draws: a table of them
// gives the same answer as the scan in one lookup.
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace quillane {

class MapChoice {
  public:
    static constexpr int Steps = 10000;

    // CumProb as the drawing builds it: entry 0 is p(0) rounded to 6 decimals, entry i the
    // previous entry plus p(i) rounded to 6 decimals, the last entry exactly 1.
    static std::vector<float> CumProb(const float* p, int n);

    explicit MapChoice(const std::vector<float>& cumProb);

    // The map for a draw u in [0, 1): r = u rounded to 4 decimals, half to even.
    int forDraw(double u) const { return table_[static_cast<size_t>(std::lrint(u * Steps))]; }
    // The map for the draw bits / 2^32, the same as forDraw(bits * 2^-32): the product
    // bits * 10000 / 2^32 is rounded half to even in integers.
    int forBits(uint32_t bits) const { return table_[StepOf(bits)]; }
    // k of the draw bits / 2^32 rounded to 4 decimals (k / 10000), in integers.
    static uint32_t StepOf(uint32_t bits) {
        const uint64_t t = static_cast<uint64_t>(bits) * Steps;
        uint32_t k = static_cast<uint32_t>(t >> 32);
        const uint32_t rest = static_cast<uint32_t>(t);
        k += static_cast<uint32_t>(rest > 0x80000000u) | (static_cast<uint32_t>(rest == 0x80000000u) & k);
        return k;
    }
    // forBits in a few operations: a guide table on the top bits gives the map at the start of the
    // bucket, and the bounds (the first draw of each next map) finish the search.
    int fast(uint32_t bits) const {
        int i = guide_[bits >> GuideShift];
        while (bits >= bound_[static_cast<size_t>(i)]) ++i;
        return i;
    }
    // The map for the draw k / 10000.
    int forStep(int k) const { return table_[static_cast<size_t>(k)]; }

  private:
    static constexpr int GuideShift = 20;
    std::array<uint8_t, Steps + 1> table_{};
    std::array<uint8_t, (1u << (32 - GuideShift))> guide_{};
    // bound_[i]: the smallest draw that selects a map after i; 2^32 for the last map.
    std::vector<uint64_t> bound_;
};

}  // namespace quillane
