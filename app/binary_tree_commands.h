#pragma once
// Symmetric Binary Tree: the boxes of the window as typed, the self-contacting ratio (the "R" button)
// and Create IFS, which checks the boxes and builds the tree into CurrentIFS.
#include <optional>
#include <string>

#include "app/app_state.h"
#include "app/binary_tree_drawing.h"
#include "core/host.h"
#include "generators/binary_tree.h"

namespace quillane {

inline constexpr const char* BinaryTreeCaption = "Symmetric Binary Tree";
inline constexpr const char* EnterAngleFirst = "Enter a branching angle first";
inline constexpr const char* EnterAngle = "Enter a branching angle";
inline constexpr const char* EnterRatio = "Enter a scaling ratio";
inline constexpr const char* ThetaNotEvaluable = "Cannot evaluate expression for theta  ";
inline constexpr const char* AngleOutOfRange = "Branching angle must be between 0 and 180 degrees";
inline constexpr const char* RNotEvaluable = "Cannot evaluate expression for R  ";
inline constexpr const char* RightRatioNotEvaluable = "Cannot evaluate expression for ratio  ";
inline constexpr const char* RatioOutOfRange = "Scaling ratio must be between 0 and 1";
inline constexpr const char* BranchTipsLabel = "(Branch tips only)";

struct BinaryTreeForm {
    std::string txtAngle = "60", txtRatio = "0.6";
    std::string txtAngleRight = "30", txtRatioRight = "0.7";
    bool chkNonSym = false;
    bool optDet = true;  // optRandom otherwise
    bool chkTips = false;
};

// Ticking chkTips selects optRandom, so optDet with tips never stands.
void BinaryTreeTips(BinaryTreeForm& form, bool ticked);
// The method the form asks for; in non-symmetric mode chkTips is hidden and counts as unticked.
TreeMethod BinaryTreeMethod(const BinaryTreeForm& form);

// Which box gets the focus after a message.
enum class TreeFocus { None, Angle, Ratio, AngleRight, RatioRight };

// cmdSelf: the ratio at which the branches touch goes into txtRatio, rounded to 5 places. Returns the
// box to focus after a message, None when the ratio was written.
TreeFocus BinaryTreeSelfContacting(BinaryTreeForm& form, Host& host);
// The ratio text cmdSelf writes for an angle.
std::string SelfContactingText(double angleDegrees);

// cmdSetup ("Create IFS"): the checks, then the tree into CurrentIFS with its figure, table and
// captions. Returns the box to focus when refused (nothing changed then), None when built.
TreeFocus BinaryTreeSetup(AppState& s, Host& host, const BinaryTreeForm& form);

// chkRecursion.
void BinaryTreeRecursionTicked(BinaryTreeRecursion& flags, bool ticked);

}  // namespace quillane
