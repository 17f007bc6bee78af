#pragma once
// Symmetric Fractals: one map, or an IFS of the fractal list, made invariant under a cyclic or
// dihedral group. The window keeps its boxes in a SymmetricForm; Create IFS builds into CurrentIFS.
#include <array>
#include <string>
#include <vector>

#include "app/app_state.h"
#include "core/host.h"
#include "generators/symmetric_maps.h"

namespace quillane {

inline constexpr const char* SymmetricCaption = "Symmetric Fractals";
inline constexpr const char* SymmetricDihedralLimit = "Maximum allowed n for dihedral group is ";
inline constexpr const char* SymmetricOrderLimit = "n can be at most ";
inline constexpr const char* SymmetricMatrixError = "Cannot evaluate one of the matrix value.   ";
inline constexpr const char* SymmetricEError = "Cannot evaluate x-coordinate of translate vector.   ";
inline constexpr const char* SymmetricFError = "Cannot evaluate y-coordinate of translate vector.   ";

struct SymmetricForm {
    int n = MinSymmetryOrder;  // cmbN: list position + 2
    SymmetryGroup group = SymmetryGroup::Dihedral;
    bool useList = false;                                          // optBase(1)
    std::array<std::string, 4> txtMatrix{"0.5", "0", "0", "0.5"};  // a, b, c, d
    std::string txtE = "0.5", txtF = "0";
    int cmbIFSList = -1;  // position in the list of entries, -1 none
};

// Which box gets the focus after a refused Create IFS.
enum class SymmetricFocus { None, Order, MatrixA, MatrixB, MatrixC, MatrixD, E, F };

// MakeFractalList: the names of the fractal list's entries, for cmbIFSList.
std::vector<std::string> MakeFractalList(const Workbench& wb);

// cmdCreate: checks, builds the maps into CurrentIFS and shows them. Returns the box to focus when
// refused (the IFS is then untouched), None when built.
SymmetricFocus SymmetricCreate(AppState& s, Host& host, const SymmetricForm& form);

}  // namespace quillane
