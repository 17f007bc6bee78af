#include "app/binary_tree_commands.h"

#include "app/design_view.h"
#include "core/evaluator.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "core/undo_menu.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

constexpr const char* ErrorTitle = "Error";
constexpr int VerticalLineItem = 5;

struct Branch {
    float angle = 0, ratio = 0;
};

std::optional<float> readAngle(const std::string& text, Host& host) {
    const auto v = EvaluateText(text);
    if (!v) {
        host.warn(ErrorTitle, ThetaNotEvaluable);
        return std::nullopt;
    }
    if (!(*v > 0 && *v < 180)) {
        host.warn(ErrorTitle, AngleOutOfRange);
        return std::nullopt;
    }
    return *v;
}

std::optional<float> readRatio(const std::string& text, const char* notEvaluable, Host& host) {
    const auto v = EvaluateText(text);
    if (!v) {
        host.warn(ErrorTitle, notEvaluable);
        return std::nullopt;
    }
    if (!(*v > 0 && *v < 1)) {
        host.warn(ErrorTitle, RatioOutOfRange);
        return std::nullopt;
    }
    return *v;
}

// The checks of one side, in the order of the window; the focus of the failing box in `focus`.
std::optional<Branch> readSide(const std::string& angleText, const std::string& ratioText,
                               const char* ratioNotEvaluable, bool right, Host& host, TreeFocus& focus) {
    const TreeFocus angleBox = right ? TreeFocus::AngleRight : TreeFocus::Angle;
    const TreeFocus ratioBox = right ? TreeFocus::RatioRight : TreeFocus::Ratio;
    if (angleText.empty()) {
        host.warn(ErrorTitle, EnterAngle);
        focus = angleBox;
        return std::nullopt;
    }
    if (ratioText.empty()) {
        host.warn(ErrorTitle, EnterRatio);
        focus = ratioBox;
        return std::nullopt;
    }
    const auto angle = readAngle(angleText, host);
    if (!angle) {
        focus = angleBox;
        return std::nullopt;
    }
    const auto ratio = readRatio(ratioText, ratioNotEvaluable, host);
    if (!ratio) {
        focus = ratioBox;
        return std::nullopt;
    }
    return Branch{*angle, *ratio};
}

void useVerticalLine(Workbench& wb) {
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), false);
    wb.InitialPolygon = BuiltInPolygon(VerticalLineItem);
    ResetDetFigure(wb, 0);
    wb.Menu.setChecked(MenuTable::key("mnupoly", VerticalLineItem), true);
}

void showTree(AppState& s, Host& host, const IFSEntry& ifs, bool det) {
    Workbench& wb = s.wb;
    wb.CurrentIFS = ifs;
    wb.txtMaps = std::to_string(ifs.nMaps);
    wb.lblComment = ifs.Comment[1];
    // The tree reaches well outside the unit square: both views follow it.
    setscale(wb, host, true, &s.pics);
    DesignScale(wb, s.design);
    if (wb.menu("mnuDesignPreview").checked) PreviewDraw(s);
    wb.FunctionsCaption = "IFS [" + ifs.Name + "]";
    SetUpFunctions(wb, host, ifs.nMaps);
    wb.DrawingStarted = false;
    wb.IFSModified = true;
    if (det && !wb.RandomMode) ResetDeterministic(wb, s.pics, host);
    for (int k = 5; k <= 4 + MaxFractals; ++k) wb.Menu.setChecked(NamesKey(k), false);
    ResetUndoMenu(wb);
    // The function table remembers that this IFS came from the tree generator.
    wb.TableRecursionFlags[BinaryTreeSlot] = true;
    wb.RecursionOff[BinaryTreeSlot] = false;
    GeneratorBuilt(s.Generator);
}

}  // namespace

void BinaryTreeTips(BinaryTreeForm& form, bool ticked) {
    form.chkTips = ticked;
    if (ticked) form.optDet = false;
}

TreeMethod BinaryTreeMethod(const BinaryTreeForm& form) {
    if (form.optDet) return TreeMethod::Deterministic;
    return form.chkTips && !form.chkNonSym ? TreeMethod::Tips : TreeMethod::Random;
}

std::string SelfContactingText(double angleDegrees) {
    std::string text = Trim(StrD(Round(SelfContactingRatio(angleDegrees), 5)));
    if (!text.empty() && text[0] == '.') text = "0" + text;
    return text;
}

TreeFocus BinaryTreeSelfContacting(BinaryTreeForm& form, Host& host) {
    if (form.txtAngle.empty()) {
        host.warn(ErrorTitle, EnterAngleFirst);
        return TreeFocus::Angle;
    }
    const auto angle = readAngle(form.txtAngle, host);
    if (!angle) return TreeFocus::Angle;
    form.txtRatio = SelfContactingText(*angle);
    return TreeFocus::None;
}

TreeFocus BinaryTreeSetup(AppState& s, Host& host, const BinaryTreeForm& form) {
    TreeFocus focus = TreeFocus::None;
    const auto left = readSide(form.txtAngle, form.txtRatio, RNotEvaluable, false, host, focus);
    if (!left) return focus;
    std::optional<Branch> right;
    if (form.chkNonSym) {
        right = readSide(form.txtAngleRight, form.txtRatioRight, RightRatioNotEvaluable, true, host, focus);
        if (!right) return focus;
    }
    useVerticalLine(s.wb);
    const TreeMethod method = BinaryTreeMethod(form);
    IFSEntry ifs;
    if (right) {
        NonSymTreeInput in{left->angle,   left->ratio,   right->angle,       right->ratio,
                           form.txtAngle, form.txtRatio, form.txtAngleRight, form.txtRatioRight};
        ifs = NonSymBinaryTreeIFS(in, method);
    } else {
        ifs = SymmetricBinaryTreeIFS(left->angle, left->ratio, method, form.txtAngle, form.txtRatio);
    }
    showTree(s, host, ifs, method == TreeMethod::Deterministic);
    return TreeFocus::None;
}

void BinaryTreeRecursionTicked(BinaryTreeRecursion& flags, bool ticked) {
    flags.UseTreeRecursion = ticked;
}

}  // namespace quillane
