#include "shell/chaos_commands.h"

#include "app/chaos_design.h"
#include "app/chaos_moves.h"
#include "app/design_view.h"
#include "shell/chaos_moves_dialog.h"
#include "shell/main_window.h"
#include "app/window_commands.h"

namespace quillane {

void RegisterChaosCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuNewChaosGame", [&s, &host] { mnuNewChaosGame_Click(s, host); });
    frame.setCommand("mnuDesignCGMoves", [&frame, &s, &host] {
        if (!OpenChaosGameMoves(s)) return;
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
