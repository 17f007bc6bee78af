#pragma once
// The frame's commands for drawing and the fractal window's view.
namespace quillane {

class MainWindow;

// Registers Draw, Stop, Clear, Draw This Many, Scale to Fit, Freeze Scale, zoom, shift, restore,
// Undo Zoom and the image size commands, and connects the fractal window's toolbar and pop-up menu.
void RegisterFractalCommands(MainWindow& frame);

}  // namespace quillane
