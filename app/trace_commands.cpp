#include "app/trace_commands.h"

#include <cmath>

#include "app/fractal_view.h"
#include "core/evaluator.h"
#include "render/fractal_overlays.h"
#include "render/trace.h"

namespace quillane {

namespace {

void showTraceText(FractalPictures& pics, const char* text) {
    pics.Det.picTrace.clear();
    if (!pics.picTraceFits || pics.picTraceFits(text)) pics.Det.picTrace = text;
}

}  // namespace

void ResetTraceMenu(Workbench& wb, FractalPictures& pics) {
    wb.Menu.setCaption("mnuTrace", TraceTurnOnCaption);
    wb.Menu.setEnabled("mnuDrawTraceSetPoint", false);
    showTraceText(pics, TraceOffText);
}

void mnuTrace_Click(Workbench& wb, FractalPictures& pics) {
    if (wb.DrawingActive) return;
    if (wb.TraceEnabled) {
        pics.picfractal.takeImage(pics.picImage2);
        wb.TraceEnabled = false;
        FractalGridAxesFP(wb, pics);
        wb.Menu.setCaption("mnuTrace", TraceTurnOnCaption);
        wb.Menu.setEnabled("mnuDrawTraceSetPoint", false);
        if (!wb.DrawingStarted) pics.picCount.clear();
        showTraceText(pics, TraceOffText);
        return;
    }
    wb.TraceEnabled = true;
    wb.Menu.setCaption("mnuTrace", TraceTurnOffCaption);
    wb.Menu.setEnabled("mnuDrawTraceSetPoint", true);
    if (!wb.DrawingStarted) pics.picCount.clear();
    showTraceText(pics, TraceOnText);
    // A point set before comes back with its dot.
    if (wb.TracePointSet) ShowOverlays(wb, pics);
}

bool HandleTrace(Workbench& wb, FractalPictures& pics, int KeyCode, int Shift) {
    const bool digit = KeyCode >= '0' && KeyCode <= '9';
    const int d = digit ? KeyCode - '0' : 0;
    const int n = wb.mapsFromText();
    if ((Shift & ShiftMaskShift) == 0) {
        if (d < 1 || d > n) return false;
        TraceStep(wb, pics, d);
        return true;
    }
    if (!digit) {
        wb.TraceDigitPending = false;
        return false;
    }
    if (!wb.TraceDigitPending) {
        wb.TraceTensDigit = static_cast<int16_t>(d);
        wb.TraceDigitPending = true;
        return false;
    }
    wb.TraceDigitPending = false;
    const int map = wb.TraceTensDigit * 10 + d;
    if (map < 1 || map > n) return false;
    TraceStep(wb, pics, map);
    return true;
}

std::optional<std::pair<float, float>> EvaluateTracePoint(const std::string& txtX, const std::string& txtY,
                                                          Host& host) {
    const std::optional<float> x = EvaluateText(txtX);
    const std::optional<float> y = EvaluateText(txtY);
    if (!x || !y || !std::isfinite(*x) || !std::isfinite(*y)) {
        host.warn("Error", TracePointErrorText);
        return std::nullopt;
    }
    return std::pair{*x, *y};
}

void SetTracePointAt(Workbench& wb, FractalPictures& pics, float x, float y) {
    if (!wb.TraceEnabled || wb.DrawingActive) return;
    SetTracePoint(wb, pics, x, y);
}

bool TraceRightClick(Workbench& wb, FractalPictures& pics, double x, double y, int shiftMask) {
    if ((shiftMask & ShiftMaskCtrl) == 0 || !wb.TraceEnabled) return false;
    SetTracePointAt(wb, pics, static_cast<float>(x), static_cast<float>(y));
    return true;
}

void mnuColorTrace_Click(Workbench& wb) {
    wb.Menu.setChecked("mnuColorTrace", true);
    wb.Menu.setChecked("mnuBlackTrace", false);
}

void mnuBlackTrace_Click(Workbench& wb) {
    wb.Menu.setChecked("mnuColorTrace", false);
    wb.Menu.setChecked("mnuBlackTrace", true);
}

void SetTraceDotSize(Workbench& wb, int size) {
    if (size >= 1 && size <= 100) wb.TraceDotSize = static_cast<int16_t>(size);
}

}  // namespace quillane
