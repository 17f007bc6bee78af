#include "shell/design_commands.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMdiSubWindow>

#include "app/design_colors.h"
#include "app/design_picture_commands.h"
#include "app/design_toolbar.h"
#include "app/design_view.h"
#include "app/grid_size.h"
#include "app/polygon_commands.h"
#include "app/transform_commands.h"
#include "app/transform_count_commands.h"
#include "app/undo.h"
#include "app/window_commands.h"
#include "design/design_drawing.h"
#include "shell/design_window.h"
#include "shell/functions_window.h"
#include "shell/grid_size_dialog.h"
#include "shell/help_commands.h"
#include "shell/main_window.h"
#include "shell/paste_data_dialog.h"
#include "shell/transform_dialogs_qt.h"

namespace quillane {

namespace {

// Brings the design window forward, as polygon drawing and loading do.
void showDesignWindow(MainWindow& frame) {
    DesignForm* form = frame.designWindow();
    if (!form) return;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(form->parentWidget())) {
        if (sub->isMinimized()) sub->showNormal();
        sub->show();
        frame.mdiArea()->setActiveSubWindow(sub);
    }
    form->show();
    form->focusPicture();
}

// frmRotate, or frmRotateCG in chaos game mode, with `direction` preset; OK rotates the selection.
void askAndRotate(MainWindow& frame, Workbench& wb, Host& host, int direction) {
    if (!ToolbarCanRotate(wb)) return;
    const auto angle = wb.DesignMode == 1 ? AskCGRotationAngle(host, &frame, direction)
                                          : AskRotationAngle(host, &frame, direction);
    if (angle) ToolbarRotate(wb, *angle);
}

void registerPolygonCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setArrayCommand("mnupoly", [&s, &host](int i) { mnupoly_Click(s.wb, s.design, s.pics, host, i); });
    frame.setCommand("mnuDesignLoadPoly", [&frame, &s, &host] {
        showDesignWindow(frame);
        mnuDesignLoadPoly_Click(s.wb, s.design, s.pics, host);
    });
    frame.setCommand("mnuFileSavePolygon", [&s, &host] { mnuFileSavePolygon_Click(s.wb, host); });
    frame.setCommand("mnuDesignPoly", [&s] { mnuDesignPoly_Click(s.wb, s.design); });
    frame.setCommand("mnuDrawPoly", [&frame, &s] {
        showDesignWindow(frame);
        const QLabel* coord = frame.designWindow()->coordBox();
        const QFontMetrics metrics(coord->font());
        mnuDrawPoly_Click(s.wb, s.design, PolygonHintText(coord->width(), metrics.horizontalAdvance('w')));
    });
}

void registerViewCommands(MainWindow& frame) {
    AppState& s = frame.state();
    frame.setCommand("mnuDesignFP", [&s] { DesignFixedPoints(s.wb, s.design); });
    frame.setCommand("mnuDesignGrid", [&s] { DesignGrid(s.wb, s.design); });
    frame.setCommand("mnuDesignAxes", [&s] { mnuDesignAxes_Click(s); });
    frame.setArrayCommand("mnuDesignLine", [&s](int i) { mnuDesignLine_Click(s.wb, s.design, i); });
    frame.setCommand("DesignLineRing", [&s] { DesignLineRing(s); });
    frame.setCommand("mnuDesignFitWin", [&s] { DesignScale(s.wb, s.design); });
    frame.setCommand("mnuDesignMatch", [&s] { mnuDesignMatch_Click(s.wb, s.design, s.pics); });
    frame.setCommand("mnuDesignZoom", [&s] { DesignWinZoom(s.wb, s.design, 1); });
    frame.setCommand("mnuDesignZoomIn", [&s] { DesignWinZoom(s.wb, s.design, -1); });
    frame.setCommand("DesignHelp", [&frame] {
        DesignHelp(frame.host(), frame.programDir(),
                   [&frame](const std::string& path) { return ShowHelpPage(frame, path); });
    });
    frame.setArrayCommand("MnuDesignShiftDir", [&s](int i) { MnuDesignShiftDir_Click(s.wb, s.design, i); });
}

// The commands that change the selected map or the number of maps. The frame redraws the design
// after each, with the selection.
void registerTransformCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuDesignNew", [&s, &host] { mnuDesignNew_Click(s.wb, host); });
    frame.setCommand("mnuDesignDuplicate", [&s, &host] { mnuDesignDuplicate_Click(s.wb, host); });
    frame.setCommand("mnuDesignClear", [&s, &host] { mnuDesignClear_Click(s.wb, host); });
    frame.setCommand("mnuDesignFlipHor", [&s] { mnuDesignFlipHor_Click(s.wb); });
    frame.setCommand("mnuDesignFlipVert", [&s] { mnuDesignFlipVert_Click(s.wb); });
    frame.setCommand("mnuDesignColorsBack",
                     [&frame, &s] { mnuDesignColorsBack_Click(s.wb, s.design, frame.host()); });
    frame.setCommand("mnuDesignColorsAxes",
                     [&frame, &s] { mnuDesignColorsAxes_Click(s.wb, s.design, frame.host()); });
    // Ctrl+Alt+G: Cancel leaves the grid as it was.
    frame.setCommand("DesignGridSize", [&frame, &s] {
        GridSizeDialog dialog(frame.host(), s.wb.GridX, s.wb.GridY, &frame);
        if (dialog.exec() != QDialog::Accepted || !dialog.spacing()) return;
        DesignGridSize(s.wb, s.design, *dialog.spacing());
    });
    frame.setCommand("DesignRotateLeft", [&s] { ToolbarRotate(s.wb, 90); });
    frame.setCommand("DesignRotateRight", [&s] { ToolbarRotate(s.wb, -90); });
    // In chaos game mode Scale and Rotate are the moves window's business.
    frame.setCommand("mnuDesignRotate", [&frame, &s, &host] {
        if (s.wb.DesignMode == 1)
            frame.runCommand("mnuDesignCGMoves");
        else
            askAndRotate(frame, s.wb, host, 0);
    });
    // The drop-down items of the rotate buttons: the fixed angles, then "Other" with that side preset.
    for (const bool left : {true, false})
        frame.setArrayCommand(left ? "DesignRotateLeftItem" : "DesignRotateRightItem",
                              [&frame, &s, &host, left](int item) {
                                  if (item < RotateItemCount)
                                      ToolbarRotate(s.wb, RotateItemAngle(item, left));
                                  else
                                      askAndRotate(frame, s.wb, host, left ? 0 : 1);
                              });
    frame.setCommand("mnuDesignScale", [&frame, &s, &host] {
        if (s.wb.DesignMode == 1) return frame.runCommand("mnuDesignCGMoves");
        if (!s.wb.MapSelected || s.wb.DrawingActive) return;
        if (const auto percent = AskScalePercent(host, &frame)) ScaleDesignMap(s.wb, host, *percent);
    });
    frame.setCommand("mnuDesignStretch", [&frame, &s, &host] {
        if (!s.wb.MapSelected || s.wb.DrawingActive || s.wb.DesignMode != 0) return;
        if (const auto values = AskStretchShear(host, &frame)) StretchShearMap(s.wb, *values);
    });
    frame.setCommand("mnuDesignSwap", [&frame, &s] {
        if (s.wb.DrawingActive) return;
        RunSwapDialog(
            s.wb, [&frame] { frame.refreshWindows(); }, &frame);
    });
}

// Undo of both windows: the design's rows, and the zoom of whichever window zoomed last.
void registerUndo(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuUndo", [&frame, &s, &host] {
        const UndoResult r = mnuUndo_Click(s, host);
        if (r.kind == UndoKind::TextEntry && r.box && frame.functionsWindow())
            frame.functionsWindow()->selectBox(r.box->column, r.box->row);
    });
}

}  // namespace

// The picture behind the design.
void registerPictureCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuDesignLoadPicture", [&frame, &s, &host] {
        showDesignWindow(frame);
        mnuDesignLoadPicture_Click(s.wb, s.design, host);
    });
    frame.setCommand("mnuDesignClearPict", [&s] { ClearDesignPicture(s.wb, s.design); });
    frame.setCommand("DesignPasteData", [&frame, &s, &host] {
        if (!DesignPasteShowing(s.design)) return;
        PasteDataDialog dialog(host, DesignPasteArea(s.design), &frame);
        if (dialog.exec() == QDialog::Accepted) ApplyPasteData(DesignPasteArea(s.design), dialog.values());
    });
}

void RegisterDesignCommands(MainWindow& frame) {
    registerPolygonCommands(frame);
    registerPictureCommands(frame);
    registerViewCommands(frame);
    registerTransformCommands(frame);
    registerUndo(frame);
}

}  // namespace quillane
