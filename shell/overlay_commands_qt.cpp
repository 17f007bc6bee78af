#include "shell/overlay_commands_qt.h"

#include "app/overlay_commands.h"
#include "app/trace_commands.h"
#include "shell/grid_size_dialog.h"
#include "shell/main_window.h"
#include "shell/trace_dialogs.h"

namespace quillane {

namespace {

void registerTrace(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuTrace", [&s] { mnuTrace_Click(s.wb, s.pics); });
    frame.setCommand("mnuDrawTraceSetPoint", [&frame, &s, &host] {
        if (!s.wb.TraceEnabled || s.wb.DrawingActive) return;
        TracePointDialog dialog(host, s.wb.TraceX, s.wb.TraceY, &frame);
        if (dialog.exec() != QDialog::Accepted || !dialog.point()) return;
        SetTracePointAt(s.wb, s.pics, dialog.point()->first, dialog.point()->second);
    });
    frame.setCommand("mnuColorTrace", [&s] { mnuColorTrace_Click(s.wb); });
    frame.setCommand("mnuBlackTrace", [&s] { mnuBlackTrace_Click(s.wb); });
    frame.setCommand("mnuDrawTraceDotSize", [&frame, &s] {
        TracePointSizeDialog dialog(s.wb.TraceDotSize, &frame);
        if (dialog.exec() == QDialog::Accepted) SetTraceDotSize(s.wb, dialog.size());
    });
    ResetTraceMenu(s.wb, s.pics);
}

void registerOverlays(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuAxes", [&s] { FractalAxes(s.wb, s.pics); });
    frame.setCommand("mnuFixedPoints", [&s] { FractalFixedPoints(s.wb, s.pics); });
    frame.setCommand("mnudrawFractalGrid", [&s] { mnudrawFractalGrid_Click(s.wb, s.pics); });
    frame.setCommand("mnuColorFP", [&s] { mnuColorFP_Click(s.wb, s.pics, true); });
    frame.setCommand("mnuBlackFP", [&s] { mnuColorFP_Click(s.wb, s.pics, false); });
    frame.setCommand("mnuDrawAxisColor", [&s, &host] { mnuDrawAxisColor_Click(s.wb, s.pics, host); });
    frame.setCommand("mnuDrawBackColor", [&s, &host] { mnuDrawBackColor_Click(s.wb, host); });
    // Reached by Ctrl+Alt+G and Ctrl+Alt+A on the fractal window.
    frame.setCommand("frmGridSize", [&frame, &s, &host] {
        GridSizeDialog dialog(host, s.wb.GridSpacingX, s.wb.GridSpacingY, &frame);
        dialog.setObjectName("frmGridSize");
        dialog.accepts = [&host](const GridSpacing& g) { return CheckFractalGridRange(g, host); };
        if (dialog.exec() == QDialog::Accepted && dialog.spacing())
            FractalGridSize(s.wb, s.pics, *dialog.spacing(), host);
    });
    frame.setCommand("frmAxisSize", [&frame, &s] {
        AxisSizeDialog dialog(s.wb.AxisThickness, &frame);
        if (dialog.exec() == QDialog::Accepted) SetAxisThickness(s.wb, s.pics, dialog.listIndex());
    });
}

}  // namespace

void RegisterOverlayCommands(MainWindow& frame) {
    registerTrace(frame);
    registerOverlays(frame);
}

}  // namespace quillane
