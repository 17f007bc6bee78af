// generate binary-tree and generate pythagorean: the window's boxes filled from the options, its
// Create IFS, and the trees drawn by their own recursion.
#include <algorithm>
#include <cmath>

#include "app/binary_tree_commands.h"
#include "app/pythagorean_commands.h"
#include "app/pythagorean_drawing.h"
#include "cli/generate_command.h"
#include "core/numbers.h"
#include "render/deterministic.h"

namespace quillane::cli {
namespace {

constexpr int DefaultTreeLevels = 12;
constexpr int DefaultPythLevels = 10;

GenerateOutcome buildBinaryTree(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--angle", "--ratio", "--right-angle", "--right-ratio"},
                           {"--self-contacting", "--random", "--tips"}))
        return {false, *bad};
    BinaryTreeForm form;
    form.txtAngle = a.value("--angle").value_or("");
    form.txtRatio = a.value("--ratio").value_or("");
    if (a.flag("--self-contacting") == a.value("--ratio").has_value())
        return {false, "generate binary-tree needs either --ratio or --self-contacting"};
    if (a.value("--right-angle").has_value() != a.value("--right-ratio").has_value())
        return {false, "--right-angle and --right-ratio go together"};
    if (a.value("--right-angle")) {
        form.chkNonSym = true;
        form.txtAngleRight = *a.value("--right-angle");
        form.txtRatioRight = *a.value("--right-ratio");
    }
    form.optDet = !a.flag("--random");
    if (a.flag("--tips")) BinaryTreeTips(form, true);
    if (a.flag("--self-contacting") && BinaryTreeSelfContacting(form, host) != TreeFocus::None)
        return {false, ""};
    return {BinaryTreeSetup(s, host, form) == TreeFocus::None, ""};
}

GenerateOutcome buildPythagorean(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--theta"}, {"--filled"})) return {false, *bad};
    if (!a.value("--theta")) return {false, "generate pythagorean needs --theta"};
    return {PythagoreanSetup(s, host, *a.value("--theta")), ""};
}

// The pictures of the fractal window become the command's picture, with the square view of the IFS.
void takePicture(AppState& s, const RasterSurface& picture) {
    const WorldWindow& w = s.wb.Window;
    const double cx = (static_cast<double>(w.xmin) + w.xmax) / 2,
                 cy = (static_cast<double>(w.ymin) + w.ymax) / 2;
    const double half = std::max(w.xmax - w.xmin, w.ymax - w.ymin) / 2 * 1.05;
    s.pics.resize(picture.width(), White);
    for (RasterSurface* p : {&s.pics.picfractal, &s.pics.picImage})
        p->setScale(cx - half, cy + half, cx + half, cy - half);
}

// The drawing as the deterministic pass at the level that shows `levels` generations.
void atLevel(AppState& s, int levels) {
    s.wb.IterationNumber = std::max(levels - 1, 0);
    s.wb.DrawingActive = true;
}

bool drawBinaryTree(AppState& s, CliHost& host, const std::vector<std::string>&, RasterSurface& picture,
                    std::optional<int> levels) {
    takePicture(s, picture);
    const int L = levels.value_or(DefaultTreeLevels);
    atLevel(s, L);
    BinaryTreeRecursion flags;
    flags.UseTreeRecursion = true;
    bool drawn = false;
    if (L == 0) {
        // No level run yet: the trunk alone, as the initial figure shows it.
        TreePainter paint;
        paint.picfractal = &s.pics.picfractal;
        paint.colourOf = [&s](int, int) { return s.pics.Det.DetSingleColor; };
        drawn = DrawBinaryTree(BranchesOf(s.wb.CurrentIFS), paint, 0, 0, 0, 1, Pi / 2, 2);
    } else {
        drawn = BinaryTreeRecursiveLevel(flags, s.wb, s.pics, host);
    }
    s.wb.DrawingActive = false;
    picture.takeImage(s.pics.picfractal);
    return drawn;
}

bool drawPythagorean(AppState& s, CliHost& host, const std::vector<std::string>& args, RasterSurface& picture,
                     std::optional<int> levels) {
    GeneratorArgs a;
    a.parse(args, {"--theta"}, {"--filled"});
    takePicture(s, picture);
    // The filled polygon figure asks for filled boxes, the outline figure for outlines.
    ResetDetFigure(s.wb, a.flag("--filled") ? 1 : 0);
    const int L = std::max(levels.value_or(DefaultPythLevels), 1);
    atLevel(s, L);
    PythagoreanRecursion flags;
    const bool drawn = PythagoreanTree(flags, s.wb, s.pics, host);
    s.wb.DrawingActive = false;
    picture.takeImage(s.pics.picfractal);
    return drawn;
}

}  // namespace

GeneratorCli BinaryTreeGeneratorCli() {
    return {
        "binary-tree",
        "  generate binary-tree --angle A (--ratio R | --self-contacting) [--right-angle A2 --right-ratio "
        "R2]\n"
        "                       [--random] [--tips]\n"
        "      a binary tree: branching angle 0 < A < 180 degrees, scaling ratio 0 < R < 1; the right\n"
        "      branch its own with --right-angle and --right-ratio; --self-contacting takes the ratio at\n"
        "      which the branches touch; --random the random IFS with its trunk maps, --tips the branch\n"
        "      tips only. --picture draws the tree branch by branch, --levels generations deep\n",
        buildBinaryTree, drawBinaryTree};
}

GeneratorCli PythagoreanGeneratorCli() {
    return {"pythagorean",
            "  generate pythagorean --theta T [--filled]\n"
            "      a Pythagorean tree of squares: the angle T of its right triangles, 1 to 89 degrees.\n"
            "      --picture draws it box by box, --levels generations deep, as outlines or --filled\n",
            buildPythagorean, drawPythagorean};
}

}  // namespace quillane::cli
