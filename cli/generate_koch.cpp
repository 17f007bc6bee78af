// generate koch: the Koch window's form filled from the options, its Create IFS, and the picture by
// the curve's own recursion.
#include "app/koch_commands.h"
#include "app/koch_recursion.h"
#include "cli/generate_command.h"
#include "render/fractal_pictures.h"

namespace quillane::cli {
namespace {

// The form the options give, or the usage error.
std::optional<std::string> readForm(const std::vector<std::string>& args, KochForm& form) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--n", "--c"}, {"--avoid"})) return bad;
    if (const auto n = a.value("--n")) form.txtN = *n;
    if (const auto c = a.value("--c")) form.txtC = *c;
    if (a.flag("--avoid")) {
        if (a.value("--c")) return std::string("--avoid and --c cannot be given together");
        KochSelfAvoiding(form);
    }
    return std::nullopt;
}

GenerateOutcome buildKoch(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    KochForm form;
    if (auto bad = readForm(args, form)) return {false, *bad};
    return {KochCreate(s, host, form) == KochFocus::None, ""};
}

// The pass of the deterministic drawing that draws level `levels` (the deepest the pixel and line
// limits allow when not given), into the view Create IFS fitted.
bool drawKoch(AppState& s, CliHost& host, const std::vector<std::string>& args, RasterSurface& picture,
              std::optional<int> levels) {
    KochForm form;
    if (readForm(args, form)) return false;
    const std::optional<KochValues> v = CheckKochForm(form, host);
    if (!v) return false;
    Workbench& wb = s.wb;
    FractalPictures& pics = s.pics;
    pics.resize(picture.width(), White);
    WorldWindow w = wb.Window;
    ScalefrmFractalWindows(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
    wb.UseKochRecursion = true;
    wb.KochRecursionAllowed = true;
    wb.IterationNumber = levels ? *levels - 1 : 1000;
    if (!KochRecursivePass(wb, pics, host, v->n, v->c)) return false;
    picture.setScale(pics.picfractal.scaleLeft(), pics.picfractal.scaleTop(), pics.picfractal.scaleRight(),
                     pics.picfractal.scaleBottom());
    picture.takeImage(pics.picfractal);
    return true;
}

}  // namespace

GeneratorCli KochGeneratorCli() {
    return {"koch",
            "  generate koch [--n N] [--c EXPR | --avoid] -o OUT.ifs [--picture PICTURE [--levels L]]\n"
            "      The Koch curve whose unit segment becomes an end piece, N - 1 sides of a regular\n"
            "      N-gon of side C and an end piece: N + 1 maps (N from 3 to 60, default 4; C an\n"
            "      expression below 1, default 1/3; --avoid the self-avoiding C for N). The picture\n"
            "      is drawn by the curve's own recursion to L levels, by default as deep as its\n"
            "      pixels allow.\n",
            buildKoch, drawKoch};
}

}  // namespace quillane::cli
