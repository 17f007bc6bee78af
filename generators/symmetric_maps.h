#pragma once
// Symmetric fractals: one map, or every map of an IFS, repeated under the rotations of a cyclic group
// of order n, and under its reflections too for the dihedral group of order 2n.
#include <optional>

#include "core/ifs_entry.h"

namespace quillane {

enum class SymmetryGroup { Dihedral, Cyclic };

// The order list offers 2 to 100.
inline constexpr int MinSymmetryOrder = 2;
inline constexpr int MaxSymmetryOrder = 100;

// Copies of one map: n rotations, and n reflections for the dihedral group.
int CopiesPerMap(SymmetryGroup group, int n);
// The largest n for which m maps still fit into one IFS.
int LargestOrder(SymmetryGroup group, int m);

// Map k (0..n-1) of the group applied after `base`: the rotation through k 2pi/n, and the reflection.
IFSFunction RotatedMap(const IFSFunction& base, int k, int n);
IFSFunction ReflectedMap(const IFSFunction& base, int k, int n);

// The IFS of one base map: rotations first, then reflections; every map of equal probability.
IFSEntry SymmetricFromBase(const IFSFunction& base, SymmetryGroup group, int n);
// The IFS of every map of `source`; copies of map j share its probability equally. Nothing when the
// maps would not fit.
std::optional<IFSEntry> SymmetricFromIFS(const IFSEntry& source, SymmetryGroup group, int n);

}  // namespace quillane
