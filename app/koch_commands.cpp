#include "app/koch_commands.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "app/generator_run.h"
#include "app/koch_recursion.h"
#include "core/chaos_game.h"
#include "core/evaluator.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "core/undo_menu.h"
#include "design/design_drawing.h"
#include "generators/koch_curve.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

constexpr const char* ErrorTitle = "Error";
constexpr int HorizontalUnitLine = 4;

std::string cText(float c) {
    return Format(c, "0.00000");
}

void writeComments(IFSEntry& ifs, const KochForm& form) {
    ifs.nComments = 3;
    ifs.Comment[1] = "; Modified Koch curve";
    ifs.Comment[2] = "; polygon edges: " + form.txtN;
    ifs.Comment[3] = "; edge length: " + form.txtC;
}

std::string kochName(int n, float c, const std::string& txtC) {
    const std::string cPart = txtC.find('/') != std::string::npos ? Trim(txtC) : cText(c);
    return "Koch Curve (" + std::to_string(n) + ", " + cPart + ")";
}

void useHorizontalLine(Workbench& wb) {
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), false);
    wb.InitialPolygon = BuiltInPolygon(HorizontalUnitLine);
    wb.Menu.setChecked(MenuTable::key("mnupoly", HorizontalUnitLine), true);
}

void toDeterministic(AppState& s, Host& host) {
    if (s.wb.menu(MenuTable::key("mnuDrawType", 0)).checked) mnuDrawType_Click(s.wb, s.pics, host, 1);
}

struct CanvasLines {
    RasterSurface& canvas;
    void piece(int) {}
    bool line(double x1, double y1, double x2, double y2) {
        canvas.line(x1, y1, x2, y2, Black);
        return true;
    }
};

}  // namespace

int KochEdges(const std::string& txtN) {
    const double v = Round(Val(txtN));
    constexpr double Lo = std::numeric_limits<int16_t>::min(), Hi = std::numeric_limits<int16_t>::max();
    return static_cast<int>(std::clamp(v, Lo, Hi));
}

std::optional<KochValues> CheckKochForm(const KochForm& form, Host& host, KochFocus* focus) {
    const auto refuse = [&](const char* text, KochFocus box) -> std::optional<KochValues> {
        host.warn(ErrorTitle, text);
        if (focus) *focus = box;
        return std::nullopt;
    };
    if (focus) *focus = KochFocus::None;
    const std::optional<float> c = EvaluateText(form.txtC);
    if (!c) return refuse(KochCError, KochFocus::C);
    const int n = KochEdges(form.txtN);
    if (n < KochMinEdges) return refuse(KochTooFewEdges, KochFocus::N);
    if (n > KochMaxEdges) return refuse(KochTooManyEdges, KochFocus::N);
    if (!(*c < 1)) return refuse(KochEdgeTooLong, KochFocus::C);
    return KochValues{n, *c};
}

KochFocus KochCreate(AppState& s, Host& host, const KochForm& form) {
    KochFocus focus = KochFocus::None;
    const std::optional<KochValues> v = CheckKochForm(form, host, &focus);
    if (!v) return focus;
    Workbench& wb = s.wb;
    const int n = v->n;
    const float c = v->c;
    const std::vector<IFSFunction> maps = KochMaps(n, c);
    IFSEntry ifs;
    ifs.nMaps = static_cast<int16_t>(n + 1);
    for (int i = 0; i <= n; ++i) ifs.setFunction(i, maps[static_cast<size_t>(i)]);
    writeComments(ifs, form);
    ifs.Name = kochName(n, c, form.txtC);
    wb.CurrentIFS = ifs;
    wb.lblComment = ifs.Comment[1];
    wb.txtMaps = std::to_string(ifs.nMaps);

    WriteTableRows(wb);
    PropProb(wb);
    setscale(wb, host, true, &s.pics);
    ResetDetFigure(wb, wb.DetFigure == -1 ? -1 : 0);
    useHorizontalLine(wb);
    DesignScale(wb, s.design);
    wb.Menu.setEnabled("mnuRun", true);
    wb.Menu.setEnabled("mnuTrace", true);
    wb.DrawingStarted = false;
    s.Generator.SavedModified = wb.IFSModified;
    wb.IFSModified = true;
    wb.ChangeCount = 1;
    wb.Menu.setEnabled(NamesKey(0), true);
    DrawDesign(wb, s.design, true);
    wb.KochRatio = KochRatioFor(c);
    wb.UndoWindow = wb.Window;

    SetUpFunctions(wb, host, n + 1);
    wb.FunctionsCaption = FunctionsCaptionFor(ifs.Name);
    InstallKochRecursion(s.pics, n, c);
    if (wb.menu(MenuTable::key("mnuDrawType", 1)).checked) ResetDeterministic(wb, s.pics, host);
    for (int k = 5; k <= 4 + MaxFractals; ++k) wb.Menu.setChecked(NamesKey(k), false);
    ResetUndoMenu(wb);
    wb.SelectedIFS = 0;
    GeneratorBuilt(s.Generator);
    wb.UseKochRecursion = form.chkRecursion;
    if (form.chkRecursion) toDeterministic(s, host);
    return KochFocus::None;
}

bool KochPreview(const KochForm& form, Host& host, RasterSurface& picCanvas, bool fit) {
    const std::optional<KochValues> v = CheckKochForm(form, host);
    if (!v) return false;
    const std::vector<float> turns = KochTurns(v->n);
    picCanvas.clear();
    if (fit) {
        const KochView view = KochPreviewView(v->n, v->c);
        picCanvas.setScale(view.left, view.top, view.right, view.bottom);
    }
    CanvasLines sink{picCanvas};
    double x = 0, y = 0;
    KochSegment(turns, std::clamp(form.PreviewLevel, 1, 3), x, y, 0.0, 1.0, static_cast<double>(v->c), sink);
    return true;
}

void KochSelfAvoiding(KochForm& form) {
    const int n = KochEdges(form.txtN);
    if (n < KochMinEdges || n > KochMaxEdges) return;
    const float c = SelfAvoidingLength(n);
    form.txtC = cText(c);
    form.sliC = CInt(c * 1000.0);
}

void KochSliderMoved(KochForm& form, int value) {
    form.sliC = std::clamp(value, 0, 1000);
    form.txtC = cText(static_cast<float>(form.sliC / 1000.0));
}

bool KochStepEdges(KochForm& form, int step) {
    const int n = KochEdges(form.txtN);
    const int next = std::clamp(n + step, KochMinEdges, KochMaxEdges);
    if (next == n) return false;
    form.txtN = std::to_string(next);
    return true;
}

bool KochSliderKeyDown(KochForm& form, KochSliderKey key) {
    int& v = form.sliC;
    const int n = KochEdges(form.txtN);
    switch (key) {
        case KochSliderKey::PageDown:
            if (v > 5) v -= 5;
            break;
        case KochSliderKey::PageUp:
            if (v < 994) v += 5;
            break;
        case KochSliderKey::Left:
            if (v > 0) v -= 1;
            break;
        case KochSliderKey::Right:
            if (v <= 998) v += 1;
            break;
        case KochSliderKey::Up:
            if (n < KochMaxEdges) form.txtN = std::to_string(n + 1);
            return true;
        case KochSliderKey::Down:
            if (n > KochMinEdges) form.txtN = std::to_string(n - 1);
            return true;
    }
    form.txtC = cText(static_cast<float>(v / 1000.0));
    return true;
}

void KochRecursionClicked(AppState& s, Host& host, const KochForm& form) {
    s.wb.UseKochRecursion = form.chkRecursion;
    if (form.chkRecursion && s.Generator.SetupDone) toDeterministic(s, host);
}

void KochActivated(AppState& s, const KochForm& form) {
    CheckGeneratorWindowItem(s.wb, s.Generator);
    s.wb.UseKochRecursion = form.chkRecursion;
}

void KochClose(AppState& s) {
    s.wb.UseKochRecursion = false;
}

}  // namespace quillane
