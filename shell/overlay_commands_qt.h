#pragma once
// The frame's commands for trace and the fractal window's overlays, with their dialogs.

namespace quillane {

class MainWindow;

void RegisterOverlayCommands(MainWindow& frame);

}  // namespace quillane
