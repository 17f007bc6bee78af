#pragma once
// The program's random generator: xoshiro256+, fast enough for the drawing loops.
// A pinned seed makes every reseed repeat the same sequence (tests, --seed, QUILLANE_SEED).
#include <cstdint>
#include <optional>

namespace quillane {

class Random {
  public:
    Random();  // pins the seed from QUILLANE_SEED when that is set
    // Reseeds from the clock, or from the pinned seed.
    void Randomize();
    void seed(uint64_t s);
    void pin(uint64_t s) {
        pinned_ = s;
        seed(s);
    }
    void unpin() { pinned_.reset(); }
    std::optional<uint64_t> pinned() const { return pinned_; }

    // Next 64 random bits.
    uint64_t next() {
        const uint64_t result = s_[0] + s_[3];
        const uint64_t t = s_[1] << 17;
        s_[2] ^= s_[0];
        s_[3] ^= s_[1];
        s_[1] ^= s_[2];
        s_[0] ^= s_[3];
        s_[2] ^= t;
        s_[3] = rotl(s_[3], 45);
        return result;
    }
    // Next 32 random bits: the best bits of the generator.
    uint32_t next32() { return static_cast<uint32_t>(next() >> 32); }
    // A value in [0, 1): next32() / 2^32. The resolution of 32 bits lets the drawing loop
    // round draws in integers with exactly the result of rounding this value.
    double Rnd() { return static_cast<double>(next32()) * 0x1.0p-32; }

  private:
    static uint64_t rotl(uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }
    uint64_t s_[4];
    std::optional<uint64_t> pinned_;
};

}  // namespace quillane
