#pragma once
// The chaos game commands of the frame: New Chaos Game and the "Chaos Game Moves" window.
namespace quillane {

class MainWindow;

void RegisterChaosCommands(MainWindow& frame);

}  // namespace quillane
