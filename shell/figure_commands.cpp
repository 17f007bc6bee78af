#include "shell/figure_commands.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <memory>

#include "app/design_picture_commands.h"
#include "app/deterministic_commands.h"
#include "app/figure_commands.h"
#include "core/initial_polygons.h"
#include "render/deterministic.h"
#include "render/initial_figures.h"
#include "render/picture_figures.h"
#include "render/scale.h"
#include "shell/design_window.h"
#include "shell/figure_dialogs.h"
#include "shell/fractal_window.h"
#include "shell/main_window.h"
#include "shell/surface_image.h"

namespace quillane {

namespace {

// What the figures remember between commands.
struct FigureMemory {
    InitialFigures figs;
};

}  // namespace

void RegisterFigureCommands(MainWindow& frame) {
    auto memory = std::make_shared<FigureMemory>();
    AppState& s = frame.state();
    s.pics.Det.FigureDrawer = [&frame, memory](Workbench& wb, FractalPictures& pics, Host& host, int figure,
                                               bool showDialog, bool resetWindow) {
        if (figure < 0 || figure > 6) figure = 0;
        std::optional<FigureParameters> p;
        if (showDialog) {
            bool useIFSColors = FigureUsesIFSColors(wb, memory->figs);
            p = AskFigure(&frame, host, figure, wb.InitialPolygon, memory->figs.last[figure], useIFSColors);
            if (!p) return false;
            SetFigureColorChoice(wb, memory->figs, useIFSColors);
        }
        DrawDrawnFigure(wb, pics, memory->figs, figure, p, resetWindow);
        return true;
    };
    s.pics.Det.ClipboardBitmap = [] { return ClipboardBitmap(); };
    Host& host = frame.host();
    for (int k = 0; k <= ClipboardFigure; ++k) {
        frame.setCommand("mnuDrawAddFigure(" + std::to_string(k) + ")", [&s, &host, memory, k] {
            mnuDrawAddFigure_Click(s.wb, s.pics, host, memory->figs, k);
        });
    }
    frame.setCommand("mnuEditPaste", [&frame, &s, &host, memory] {
        if (s.wb.DrawingActive) return;
        if (auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget())) {
            box->paste();
            return;
        }
        QMdiSubWindow* active = frame.mdiArea()->activeSubWindow();
        if (active && frame.fractalWindow() && active->widget() == frame.fractalWindow()) {
            PasteFractalFigure(s.wb, s.pics, host, memory->figs);
        } else if (active && frame.designWindow() &&
                   active->widget() == static_cast<QWidget*>(frame.designWindow())) {
            const std::optional<RasterSurface> clipboard = ClipboardBitmap();
            PasteDesignPicture(s.wb, s.design, clipboard ? &*clipboard : nullptr);
        }
    });
    for (int k = 0; k <= 1; ++k)
        frame.setCommand("mnuDrawDetColorItems(" + std::to_string(k) + ")",
                         [&s, memory, k] { mnuDrawDetColorItems_Click(s.wb, memory->figs, k); });
    frame.setCommand("mnuDrawType(0)", [&s, &host] { mnuDrawType_Click(s.wb, s.pics, host, 0); });
    frame.setCommand("mnuDrawType(1)", [&s, &host] { mnuDrawType_Click(s.wb, s.pics, host, 1); });
}

}  // namespace quillane
