#pragma once
// The record of an initial polygon: the design window draws every function as an image of one, and
// the deterministic drawing can start from it.
#include <array>
#include <cstdint>

namespace quillane {

inline constexpr int MaxPolygonPoints = 110;
// An entry whose x is at least this is a pen lift: the next entry starts a new path.
inline constexpr float PenLift = 1000.0f;

struct DesignPolygon {
    int16_t Kind = 0;  // 0 general, 1 triangle, 2 square, 3 vertical line, 4 horizontal line, 5 oriented line
    int16_t nPoints = 0;
    // Entries 1..110; slot 0 is unused.
    std::array<float, MaxPolygonPoints + 1> x{};
    std::array<float, MaxPolygonPoints + 1> y{};

    bool isPenLift(int i) const { return x[i] >= PenLift; }
    // Appends an entry; false, and nothing stored, when the record is full.
    bool add(float px, float py);
    void addPenLift() { add(PenLift, PenLift); }
    bool operator==(const DesignPolygon&) const = default;
};

}  // namespace quillane
