#include "core/random.h"

#include <chrono>
#include <cstdlib>
#include <string>

namespace quillane {

namespace {
uint64_t splitmix(uint64_t& x) {
    uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}
}  // namespace

Random::Random() {
    if (const char* env = std::getenv("QUILLANE_SEED"); env && *env) {
        pin(std::strtoull(env, nullptr, 10));
    } else {
        Randomize();
    }
}

void Random::seed(uint64_t s) {
    for (auto& word : s_) word = splitmix(s);
}

void Random::Randomize() {
    if (pinned_) {
        seed(*pinned_);
        return;
    }
    auto now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    seed(static_cast<uint64_t>(now));
}

}  // namespace quillane
