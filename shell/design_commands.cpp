#include "shell/design_commands.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMdiSubWindow>

#include "design/design_drawing.h"
#include "design/design_view.h"
#include "design/polygon_commands.h"
#include "shell/design_window.h"
#include "shell/main_window.h"

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
    form->picture()->setFocus();
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
    frame.setCommand("mnuDesignAxes", [&s] {
        s.wb.Menu.setChecked("mnuDesignAxes", !s.wb.menu("mnuDesignAxes").checked);
        DesignAxes(s.wb, s.design);
    });
    frame.setArrayCommand("mnuDesignLine", [&s](int i) { mnuDesignLine_Click(s.wb, s.design, i); });
    frame.setCommand("DesignLineRing", [&s] { mnuDesignLine_Click(s.wb, s.design, (s.wb.LineThickness / 2 + 1) % 3); });
    frame.setCommand("mnuDesignFitWin", [&s] { DesignScale(s.wb, s.design); });
    frame.setCommand("mnuDesignMatch", [&s] { mnuDesignMatch_Click(s.wb, s.design, s.pics); });
    frame.setCommand("mnuDesignZoom", [&s] { DesignWinZoom(s.wb, s.design, 1); });
    frame.setCommand("mnuDesignZoomIn", [&s] { DesignWinZoom(s.wb, s.design, -1); });
    frame.setArrayCommand("MnuDesignShiftDir", [&s](int i) { MnuDesignShiftDir_Click(s.wb, s.design, i); });
}

}  // namespace

void RegisterDesignCommands(MainWindow& frame) {
    registerPolygonCommands(frame);
    registerViewCommands(frame);
}

}  // namespace quillane
