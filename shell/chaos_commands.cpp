#include "shell/chaos_commands.h"

#include "app/chaos_design.h"
#include "app/chaos_moves.h"
#include "app/design_view.h"
#include "shell/chaos_moves_dialog.h"
#include "shell/main_window.h"

namespace quillane {

void RegisterChaosCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuNewChaosGame", [&s, &host] {
        if (mnuNewChaosGame_Click(s.wb, host)) RedrawDesignView(s.wb, s.design);
    });
    frame.setCommand("mnuDesignCGMoves", [&frame, &s, &host] {
        if (s.wb.DrawingActive || s.wb.DesignMode != 1) return;
        s.wb.SavedIFS = s.wb.CurrentIFS;
        OpenScaleCG(s.wb);
        RedrawDesignView(s.wb, s.design);
        ChaosMovesDialog dialog(
            s.wb, host,
            [&frame, &s] {
                RedrawDesignView(s.wb, s.design);
                frame.refreshWindows();
            },
            &frame);
        dialog.exec();
        RedrawDesignView(s.wb, s.design);
    });
}

}  // namespace quillane
