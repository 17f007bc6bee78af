#include "shell/color_commands.h"

#include "app/gradient_commands.h"
#include "core/menu_tree.h"
#include "shell/main_window.h"
#include "shell/palette_window.h"
#include "shell/pixel_coloring_window.h"

namespace quillane {
namespace {

constexpr int ColorGradientWindowItem = 20;  // mnuWin(20) "Color Gradient"
constexpr int WindowItems = 22;

void checkWindowItem(Workbench& wb, int index) {
    for (int k = 0; k < WindowItems; ++k) wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == index);
}

PixelColoringWindow& pixelColoringWindow(MainWindow& frame) {
    if (auto* w = frame.findChild<PixelColoringWindow*>("frmPixelColoring")) return *w;
    auto* w = new PixelColoringWindow(frame.state(), frame.host(), [&frame] { frame.refreshWindows(); }, &frame);
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

}  // namespace

void RegisterColorCommands(MainWindow& frame) {
    AppState& s = frame.state();
    frame.setArrayCommand("mnuColors", [&s](int index) { mnuColors_Click(s.wb, index); });
    frame.setCommand("mnuColorsGradient", [&frame, &s] {
        mnuColorsGradient_Click(s.wb);
        showPixelColoring(frame);
    });
    frame.setCommand(MenuTable::key("mnuWin", ColorGradientWindowItem), [&frame] { showPixelColoring(frame); });
    // Modal: Accept or Reject ends it; the frame then shows the colours.
    frame.setCommand("mnuCodeEditPalette", [&frame, &s] {
        PaletteWindow window(s, frame.host(), &frame);
        window.exec();
    });
}

void RefreshColorWindows(MainWindow& frame) {
    if (auto* w = frame.findChild<PixelColoringWindow*>("frmPixelColoring"); w && w->isVisible()) w->refresh();
}

}  // namespace quillane
