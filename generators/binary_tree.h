#pragma once
// Binary trees: a trunk from (0,0) to (0,1) that forks into two branches turned by an angle and
// shrunk by a ratio, as an IFS of two branch maps with a trunk, and the tree drawn branch by branch.
#include <functional>
#include <string>

#include "core/colors.h"
#include "core/ifs_entry.h"
#include "render/raster_surface.h"

namespace quillane {

// The degree sign (character 176) of the comments and names, in the program's UTF-8 text.
inline constexpr const char* TreeDegreeSign = "\xC2\xB0";

// optDet, or optRandom with or without chkTips ("Branch tips only").
enum class TreeMethod { Deterministic, Random, Tips };

// cmdSelf: the ratio at which the branches of a tree of this angle (0 < angle < 180) just touch.
double SelfContactingRatio(double angleDegrees);

// The trunk's weight q and the height h of the trunk map of the random IFS.
double TrunkWeight(float ratio);
float TrunkHeight(float ratio, float angleDegrees);

// The symmetric tree; the texts of the boxes go into its comments.
IFSEntry SymmetricBinaryTreeIFS(float angle, float ratio, TreeMethod method, const std::string& angleText,
                                const std::string& ratioText);
// The non-symmetric tree: left angle and ratio for map 1, right for map 2.
struct NonSymTreeInput {
    float angleLeft = 0, ratioLeft = 0, angleRight = 0, ratioRight = 0;
    std::string angleLeftText, ratioLeftText, angleRightText, ratioRightText;
};
IFSEntry NonSymBinaryTreeIFS(const NonSymTreeInput& in, TreeMethod method);

// Whether the IFS still has the form the recursive drawing needs.
bool CheckBinaryTree(const IFSEntry& ifs);
bool CheckNonSymBinaryTree(const IFSEntry& ifs);

// What DrawBinaryTree draws with: both pictures take each branch; colourOf gives the colour of a
// branch from its depth and colour argument; step counts it, moves the bar and yields, and says
// whether to go on (false once the drawing was stopped).
struct TreePainter {
    RasterSurface* picfractal = nullptr;
    RasterSurface* picImage = nullptr;
    std::function<Color(int depth, int colour)> colourOf;
    std::function<bool()> step;
};

// The branch turns and ratios of maps 1 and 2, read from the IFS.
struct TreeBranches {
    double t1 = 0, t2 = 0, r1 = 0, r2 = 0;
};
TreeBranches BranchesOf(const IFSEntry& ifs);
// The depth at which the longer branch of a trunk of length s falls under one pixel of size w.
int BinaryTreeDepth(const TreeBranches& br, double pixel, double s);

// One branch from (x, y) and, while depth > 0, its two children. False when the drawing was stopped.
bool DrawBinaryTree(const TreeBranches& br, TreePainter& paint, int depth, double x, double y, double length,
                    double angle, int colour);

}  // namespace quillane
