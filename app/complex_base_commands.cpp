#include "app/complex_base_commands.h"

#include <cmath>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "app/generator_run.h"
#include "core/evaluator.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/numbers.h"
#include "core/undo_menu.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

constexpr const char* ErrorTitle = "Error";

void enableDrawType(Workbench& wb, bool enabled) {
    wb.Menu.setEnabled("mnuDrawType(0)", enabled);
    wb.Menu.setEnabled("mnuDrawType(1)", enabled);
}

void titleByDrawingType(Workbench& wb) {
    wb.FractalCaption = wb.RandomMode ? RandomCaption : DeterministicCaption;
    wb.FractalWindowCaption = wb.FractalCaption;
}

// PlayGame hands its loop over only while the window is open and the base method chosen.
void takeOverPlayGame(AppState& s) {
    s.pics.PlotSource = [&s](Workbench& wb, FractalPictures& pics, Host& host, int32_t Count, bool fresh) {
        if (!ComplexBaseSource(s)) {
            // The window was closed behind our back (another generator opened): let go. PlayGame runs
            // a copy of this source, so dropping it here is safe.
            s.Complex.ComplexBaseDrawing = false;
            s.pics.PlotSource = nullptr;
            return false;
        }
        Plot(s.Complex, wb, pics, host, Count, fresh);
        return true;
    };
}

// Step 8 of Create IFS for the base method: the loop is ours and the drawing type stays Random.
void useBaseMethod(AppState& s, Host& host) {
    Workbench& wb = s.wb;
    s.Complex.ComplexBaseDrawing = true;
    takeOverPlayGame(s);
    if (!wb.RandomMode) mnuDrawType_Click(wb, s.pics, host, 0);
    wb.FractalCaption = ComplexBaseCaption;
    wb.FractalWindowCaption = ComplexBaseCaption;
    enableDrawType(wb, false);
    // Another generator opening closes this one through the run, which gives the items back.
    s.Generator.DrawTypeLocked = true;
}

}  // namespace

void ComplexNextExample(ComplexForm& form) {
    form.ExampleIndex = (form.ExampleIndex + 1) % ComplexExampleCount;
    const ComplexExample& e = ComplexExamples()[static_cast<size_t>(form.ExampleIndex)];
    form.polar = e.polar;
    form.txta = e.txta;
    form.txtb = e.txtb;
}

ComplexColorOptions ComplexColorOptionsFor(bool optDrawBase) {
    if (optDrawBase) return {true, ComplexIFSOneColorCaption, true};
    return {false, ComplexIFSColorCaption, false};
}

bool ComplexBaseSource(const AppState& s) {
    return s.Complex.ComplexBaseDrawing && s.Generator.Index == ComplexBasesExample;
}

ComplexFocus ComplexCreate(AppState& s, Host& host, const ComplexForm& form) {
    const auto a = EvaluateText(form.txta);
    if (!a) {
        host.warn(ErrorTitle, ComplexAError);
        return ComplexFocus::A;
    }
    const auto b = EvaluateText(form.txtb);
    if (!b) {
        host.warn(ErrorTitle, ComplexBError);
        return ComplexFocus::B;
    }
    const float BaseA = static_cast<float>(*a), BaseB = static_cast<float>(*b);
    const ComplexPoint base = ComplexBasePoint(form.polar, BaseA, BaseB);
    const float square = base.u * base.u + base.v * base.v;
    // Also refuses a base whose square overflows or is not a number.
    if (!(square < 1)) {
        host.warn(ErrorTitle, std::string(ComplexModulusError) + "\n" + ComplexModulusLine +
                                  Format(std::sqrt(square), "0.0000"));
        return ComplexFocus::A;
    }
    Workbench& wb = s.wb;
    IFSEntry ifs;
    ifs.Name = "Untitled";
    ifs.nMaps = 2;
    const auto maps = ComplexBaseMaps(base);
    for (int i = 0; i < 2; ++i) ifs.setFunction(i, maps[static_cast<size_t>(i)]);
    ifs.nComments = 0;
    wb.CurrentIFS = ifs;
    wb.lblComment.clear();
    s.Complex.BaseA = BaseA;
    s.Complex.BaseB = BaseB;
    s.Complex.Polar = form.polar;
    s.Complex.optIFScolor = !(form.optDrawBase && form.optPixelColor);
    SetUpFunctions(wb, host, 2);
    WriteTableRows(wb);
    setscale(wb, host, true, &s.pics);
    wb.FitWindow = wb.Window;
    DesignScale(wb, s.design);
    wb.Menu.setEnabled("mnuRun", true);
    wb.Menu.setEnabled("mnuTrace", true);
    wb.DrawingStarted = false;
    wb.IFSModified = true;
    wb.ChangeCount = 0;
    wb.Menu.setEnabled(NamesKey(0), true);
    s.Complex.ComplexPointCount = 0;
    if (!wb.RandomMode) ResetDeterministic(wb, s.pics, host);
    wb.FunctionsCaption = FunctionsCaptionFor("Untitled");
    for (int i = 5; i < wb.NamesItemCount; ++i) wb.Menu.setChecked(NamesKey(i), false);
    ResetUndoMenu(wb);
    wb.SelectedIFS = 0;
    GeneratorBuilt(s.Generator);
    if (form.optDrawBase)
        useBaseMethod(s, host);
    else
        ComplexRelease(s);
    ClearImage(wb, s.pics, false);
    return ComplexFocus::None;
}

void ComplexChooseMethod(AppState& s, Host& host, bool optDrawBase) {
    if (!s.Generator.SetupDone) return;
    if (optDrawBase) {
        useBaseMethod(s, host);
        ClearImage(s.wb, s.pics, false);
    } else {
        ClearImage(s.wb, s.pics, false);
        ComplexRelease(s);
    }
}

void ComplexChooseColor(AppState& s, bool optPixelColor) {
    s.Complex.optIFScolor = !optPixelColor;
}

void ComplexRelease(AppState& s) {
    s.Complex.ComplexBaseDrawing = false;
    s.pics.PlotSource = nullptr;
    enableDrawType(s.wb, true);
    s.Generator.DrawTypeLocked = false;
    titleByDrawingType(s.wb);
}

}  // namespace quillane
