#pragma once
// The recursive drawings of the tree generators in a deterministic pass: the branches or boxes are
// painted directly instead of iterating the maps on the picture.
#include <cstdint>
#include <memory>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// The slots of the generators in RecursionOff and in the function table's flags.
inline constexpr int BinaryTreeSlot = 2;
inline constexpr int PythagoreanSlot = 3;

// What the binary tree window tells the deterministic pass.
struct BinaryTreeRecursion {
    bool UseTreeRecursion = false;  // chkRecursion
};

// The recursive drawings both tree generators share: the colour of a branch or box, the count with
// the bar and the yield, and the clean pictures they start from.
struct RecursiveTreeRun {
    Workbench& wb;
    FractalPictures& pics;
    Host& host;
    int level = 0;        // the pass's level
    int64_t count = 0;    // branches drawn
    int64_t maximum = 1;  // the bar's full count
    bool overlay = false;

    RecursiveTreeRun(Workbench& w, FractalPictures& p, Host& h);
    // The colour of a piece at `depth` with colour argument `colour` (a map index, or one past them).
    Color colourOf(int depth, int colour) const;
    // Counts a piece, moves the bar, yields; false once the drawing was stopped.
    bool step();
    // Outside overlay mode the pictures are emptied and a placed picture put back.
    void clearPictures();
};

// The size of one pixel of the fractal window in world units.
double PixelSize(const FractalPictures& pics);

// The binary tree's part of a deterministic pass; true when it drew the tree.
bool BinaryTreeRecursiveLevel(const BinaryTreeRecursion& flags, Workbench& wb, FractalPictures& pics,
                              Host& host);
// Adds the binary tree's recursive drawing to the deterministic pass; the window holds the flags.
std::shared_ptr<BinaryTreeRecursion> InstallBinaryTreeDrawing(FractalPictures& pics);

}  // namespace quillane
