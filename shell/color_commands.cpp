#include "shell/color_commands.h"

#include "app/color_stealing_commands.h"
#include "app/gradient_commands.h"
#include "core/menu_tree.h"
#include "shell/color_stealing_window.h"
#include "shell/main_window.h"
#include "shell/palette_window.h"
#include "shell/pixel_coloring_window.h"
#include "shell/surface_image.h"

namespace quillane {
namespace {

constexpr int ColorGradientWindowItem = 20;  // mnuWin(20) "Color Gradient"
constexpr int WindowItems = 22;

void checkWindowItem(Workbench& wb, int index) {
    for (int k = 0; k < WindowItems; ++k) wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == index);
}

PixelColoringWindow& pixelColoringWindow(MainWindow& frame) {
    if (auto* w = frame.findChild<PixelColoringWindow*>("frmPixelColoring")) return *w;
    auto* w = new PixelColoringWindow(
        frame.state(), frame.host(), [&frame] { frame.refreshWindows(); }, &frame);
    QObject::connect(w, &PixelColoringWindow::closedByButton, &frame, [&frame] {
        frame.state().wb.Menu.setChecked(MenuTable::key("mnuWin", ColorGradientWindowItem), false);
    });
    return *w;
}

void showPixelColoring(MainWindow& frame) {
    PixelColoringWindow& w = pixelColoringWindow(frame);
    w.refresh();
    w.show();
    w.raise();
    w.activateWindow();
    checkWindowItem(frame.state().wb, ColorGradientWindowItem);
}

// Made on first use, hidden: a drawing in colour mode 7 may need its list before anyone opens it.
ColorStealingWindow& colorStealingWindow(MainWindow& frame) {
    if (auto* w = frame.findChild<ColorStealingWindow*>("frmColorStealing")) return *w;
    auto* w = new ColorStealingWindow(
        frame.state(), frame.host(), frame.programDir(), [&frame] { frame.refreshWindows(); }, &frame);
    QObject::connect(w, &ColorStealingWindow::hidden, &frame, [&frame] {
        frame.state().wb.Menu.setChecked(MenuTable::key("mnuWin", ColorStealingWindowItem), false);
    });
    QObject::connect(frame.mdiArea(), &QMdiArea::subWindowActivated, w, [w](QMdiSubWindow* child) {
        if (child) w->setLastActive(false);
    });
    return *w;
}

void showColorStealing(MainWindow& frame) {
    ColorStealingWindow& w = colorStealingWindow(frame);
    frame.state().wb.Menu.setVisible(MenuTable::key("mnuWin", ColorStealingWindowItem), true);
    w.refresh();
    w.show();
    w.raise();
    w.activateWindow();
    checkWindowItem(frame.state().wb, ColorStealingWindowItem);
}

void registerColorStealing(MainWindow& frame) {
    AppState& s = frame.state();
    frame.setCommand("mnuCodeColorStealingOptions", [&frame] { showColorStealing(frame); });
    frame.setCommand(MenuTable::key("mnuWin", ColorStealingWindowItem),
                     [&frame] { showColorStealing(frame); });
    s.pics.Stealing.ConfigureComboList = [&frame] { colorStealingWindow(frame).configureComboList(); };
    // Paste goes to the stealing window while it is the active one; elsewhere as before.
    MainWindow::Command paste = frame.command("mnuEditPaste");
    frame.setCommand("mnuEditPaste", [&frame, &s, paste] {
        auto* w = frame.findChild<ColorStealingWindow*>("frmColorStealing");
        if (w && w->isVisible() && w->lastActive()) {
            if (!s.wb.DrawingActive && w->paste(ClipboardBitmap())) w->refresh();
            return;
        }
        if (paste) paste();
    });
}

}  // namespace

void RegisterColorCommands(MainWindow& frame) {
    AppState& s = frame.state();
    frame.setArrayCommand("mnuColors", [&s](int index) { mnuColors_Click(s.wb, index); });
    frame.setCommand("mnuColorsGradient", [&frame, &s] {
        mnuColorsGradient_Click(s.wb);
        showPixelColoring(frame);
    });
    frame.setCommand(MenuTable::key("mnuWin", ColorGradientWindowItem),
                     [&frame] { showPixelColoring(frame); });
    // Modal: Accept or Reject ends it; the frame then shows the colours.
    frame.setCommand("mnuCodeEditPalette", [&frame, &s] {
        PaletteWindow window(s, frame.host(), &frame);
        window.exec();
    });
    registerColorStealing(frame);
}

void RefreshColorWindows(MainWindow& frame) {
    if (auto* w = frame.findChild<PixelColoringWindow*>("frmPixelColoring"); w && w->isVisible())
        w->refresh();
    if (auto* w = frame.findChild<ColorStealingWindow*>("frmColorStealing"); w && w->isVisible())
        w->refresh();
}

}  // namespace quillane
