#include "app/sierpinski_commands.h"

#include "app/design_view.h"
#include "core/chaos_game.h"
#include "core/evaluator.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

constexpr const char* ErrorTitle = "Error";

std::string point(float v) {
    return Trim(Str(v));
}

void writeComments(IFSEntry& ifs, const SierpinskiForm& form) {
    const std::array<std::string, 11> lines{
        "; Modified Sierpinski Triangle",
        "; point A = (" + point(form.PointA.x) + "," + point(form.PointA.y) + "}",
        "; point B = (0,0)",
        "; point C = (1,0)",
        "; angle A = " + form.txtAngle[0] + " degrees",
        "; angle B = " + form.txtAngle[1] + " degrees",
        "; angle C = " + form.txtAngle[2] + " degrees",
        "; factor a = " + form.txtPara[0],
        "; factor b = " + form.txtPara[1],
        "; factor c = " + form.txtPara[2],
        SierpinskiCommentLine(form.method),
    };
    ifs.nComments = static_cast<int16_t>(lines.size());
    for (size_t k = 0; k < lines.size(); ++k) ifs.Comment[k + 1] = lines[k];
}

bool checkCoordinate(const char* which, float v, Host& host) {
    const std::string name = std::string(which) + "-coordinate for A";
    if (!(v > 0)) {
        host.warn(ErrorTitle, name + " must be positive");
        return false;
    }
    if (!(v < 1)) {
        host.warn(ErrorTitle, name + " must be less than 1");
        return false;
    }
    return true;
}

}  // namespace

bool SierpinskiTriangleFromAngles(SierpinskiForm& form, Host& host) {
    double angle[3];
    for (size_t k = 0; k < 3; ++k) {
        const auto v = EvaluateText(form.txtAngle[k]);
        angle[k] = v ? *v : 0.0;
    }
    const TriangleFromAngles t = ApexFromAngles(angle[0], angle[1], angle[2]);
    if (!t.apex) {
        host.warn(ErrorTitle, t.error);
        return false;
    }
    form.PointA = *t.apex;
    return true;
}

bool CheckPointA(float x, float y, Host& host) {
    return checkCoordinate("x", x, host) && checkCoordinate("y", y, host);
}

void SierpinskiRandomFactors(SierpinskiForm& form, Workbench& wb) {
    wb.Rng.Randomize();
    for (std::string& t : form.txtPara) t = Format(wb.Rng.Rnd() * 0.6 + 0.2, "0.00000");
}

void SierpinskiPedalFactors(SierpinskiForm& form) {
    const auto f = PedalFactors(form.PointA);
    for (size_t k = 0; k < 3; ++k) form.txtPara[k] = Format(f[k], "0.00000");
    form.method = 2;
}

std::optional<std::array<float, 3>> SierpinskiFactors(const SierpinskiForm& form, Host& host) {
    std::array<float, 3> f{};
    for (size_t k = 0; k < 3; ++k) {
        const auto v = EvaluateText(form.txtPara[k]);
        // A factor of 0 or 1 collapses a sub-triangle to a side: no map of area left.
        if (!v || !(*v > 0) || !(*v < 1)) {
            host.warn(ErrorTitle, SierpinskiFactorError);
            return std::nullopt;
        }
        f[k] = *v;
    }
    return f;
}

bool SierpinskiCreate(AppState& s, Host& host, const SierpinskiForm& form) {
    const auto f = SierpinskiFactors(form, host);
    if (!f) return false;
    if (!CheckPointA(form.PointA.x, form.PointA.y, host)) return false;
    Workbench& wb = s.wb;
    const auto maps = SierpinskiMaps(form.method, form.PointA, (*f)[0], (*f)[1], (*f)[2]);
    IFSEntry ifs;
    ifs.nMaps = 3;
    for (int i = 0; i < 3; ++i) ifs.setFunction(i, maps[static_cast<size_t>(i)]);
    writeComments(ifs, form);
    ifs.Name = form.method == 1 ? std::string("Modified Sierpinski Triangle")
                                : "Sierpinski Triangle (" + form.txtPara[0] + ", " + form.txtPara[1] + ", " +
                                      form.txtPara[2] + ")";
    wb.CurrentIFS = ifs;
    wb.FunctionsCaption = FunctionsCaptionFor(ifs.Name);
    wb.lblComment = ifs.Comment[1];
    SetUpFunctions(wb, host, 3);
    WriteTableRows(wb);
    PropProb(wb);
    setscale(wb, host, true, &s.pics);
    // The triangle is the initial set; no figure of the menu stands for it.
    DesignPolygon tri;
    tri.Kind = 0;
    tri.add(form.PointA.x, form.PointA.y);
    tri.add(0, 0);
    tri.add(1, 0);
    tri.add(form.PointA.x, form.PointA.y);
    wb.InitialPolygon = tri;
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), false);
    DesignScale(wb, s.design);
    wb.Menu.setEnabled("mnuTrace", true);
    wb.IFSModified = true;
    if (!wb.RandomMode) ResetDeterministic(wb, s.pics, host);
    s.Generator.SetupDone = true;
    GeneratorBuilt(s.Generator);
    return true;
}

bool SierpinskiTwistDraw(const SierpinskiForm& form, const TwistForm& twist, RasterSurface& canvas,
                         Host& host) {
    const auto f = SierpinskiFactors(form, host);
    if (!f) return false;
    canvas.clear();
    DrawTwistedSierpinski(canvas, TwistedSierpinski(form.PointA, *f, twist.settings), twist.chkFilled,
                          twist.byCorner, twist.picColor, TwistCornerColors);
    return true;
}

}  // namespace quillane
