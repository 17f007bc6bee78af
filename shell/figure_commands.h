#pragma once
// The initial figures of the deterministic drawing: their menu items and the figure drawer.
namespace quillane {

class MainWindow;

void RegisterFigureCommands(MainWindow& frame);

}  // namespace quillane
