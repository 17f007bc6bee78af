#include "render/map_choice.h"

#include "core/numbers.h"

namespace quillane {

std::vector<float> MapChoice::CumProb(const float* p, int n) {
    std::vector<float> cum(static_cast<size_t>(n > 0 ? n : 0));
    if (n <= 0) return cum;
    cum[0] = static_cast<float>(Round(p[0], 6));
    for (int i = 1; i <= n - 2; ++i) cum[i] = static_cast<float>(Round(cum[i - 1] + p[i], 6));
    cum[n - 1] = 1.0f;
    return cum;
}

MapChoice::MapChoice(const std::vector<float>& cumProb) {
    const int n = static_cast<int>(cumProb.size());
    for (int k = 0; k <= Steps; ++k) {
        // r as the loop stores it: a Single holding k / 10000.
        const float r = static_cast<float>(static_cast<double>(k) / Steps);
        int i = 0;
        // The last entry is 1.0, so the scan ends on it for every r up to 1.
        while (i < n - 1 && cumProb[i] < r) ++i;
        table_[static_cast<size_t>(k)] = static_cast<uint8_t>(i);
    }
    // The map grows with the draw, so each bound is found by bisection over the 32-bit draws.
    const int last = n > 0 ? n - 1 : 0;
    bound_.assign(static_cast<size_t>(last) + 1, uint64_t{1} << 32);
    for (int i = 0; i < last; ++i) {
        uint64_t lo = 0, hi = uint64_t{1} << 32;  // the answer lies in [lo, hi]
        while (lo < hi) {
            const uint64_t mid = lo + (hi - lo) / 2;
            if (forBits(static_cast<uint32_t>(mid)) > i)
                hi = mid;
            else
                lo = mid + 1;
        }
        bound_[static_cast<size_t>(i)] = lo;
    }
    for (size_t g = 0; g < guide_.size(); ++g)
        guide_[g] = static_cast<uint8_t>(forBits(static_cast<uint32_t>(g << GuideShift)));
}

}  // namespace quillane
