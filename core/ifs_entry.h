#pragma once
// The one record the whole program works on: a named IFS kept as parallel per-function arrays.
#include <array>
#include <cstdint>
#include <string>

namespace quillane {

inline constexpr int MaxMaps = 100;     // what the interface allows in one IFS
inline constexpr int MapSlots = 101;    // slots 0..100 of every per-function array
inline constexpr int MaxFractals = 30;  // FractalList entries 1..30
inline constexpr int MaxComments = 20;  // Comment(1..20)
inline constexpr int CommentSlotLength = 100;
inline constexpr int MaxMatrixFunctionForm = 35;

// Booleans that reach files or comparisons are 16-bit 0 / -1.
inline constexpr int16_t True16 = -1;
inline constexpr int16_t False16 = 0;

using MapArray = std::array<float, MapSlots>;

// A value copy of slot i across the arrays of an IFSEntry. The entry stays the storage;
// this is how one function is read, compared or copied as a whole.
struct IFSFunction {
    float a = 0, b = 0, c = 0, d = 0, e = 0, f = 0, p = 0;
    std::array<std::string, 5> Step;  // 1..4 used
    float Scale = 0, Angle = 0, Prob = 0, FPx = 0, FPy = 0;
    bool operator==(const IFSFunction&) const = default;
};

struct IFSEntry {
    std::string Name = "Untitled";
    int16_t nMaps = 0;
    MapArray a{}, b{}, c{}, d{}, e{}, f{}, p{};
    // Step[k][i], k = 1..4: one of "S", "R", "V", "H" or empty. Index 0 is unused.
    std::array<std::array<std::string, MapSlots>, 5> Step;
    MapArray Scale{}, Angle{}, Prob{}, FPx{}, FPy{};
    int16_t nComments = 0;
    std::array<std::string, MaxComments + 1> Comment;  // 1..20; slot 0 unused
    int16_t HasChaosGame = False16;

    IFSFunction function(int i) const;
    void setFunction(int i, const IFSFunction& fn);

    bool operator==(const IFSEntry&) const = default;
};

// Copies a..f of `from` into `to`, keeping to's probability and chaos game fields.
void CopyCoefficients(IFSFunction& to, const IFSFunction& from);
// Slot i of `ifs` gets a..f of m; its probability and chaos game fields stay.
void StoreCoefficients(IFSEntry& ifs, int i, const IFSFunction& m);

// The one-function "Untitled" IFS of a fresh start and of New IFS.
void InitializeIFS(IFSEntry& ifs);
IFSEntry DefaultIFS();

}  // namespace quillane
