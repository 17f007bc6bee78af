#pragma once
// The frame's way to the Sierpinski Triangle Game: File, New (F9) and its Window menu item.
namespace quillane {

class MainWindow;
class SierpinskiGameWindow;

void RegisterGameCommands(MainWindow& frame);
// The game window, made on first use.
SierpinskiGameWindow& GameWindow(MainWindow& frame);

}  // namespace quillane
